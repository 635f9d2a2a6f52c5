// SPDX-License-Identifier: Zlib
// The triangle fill alone, plain and fast: many small triangles (cars), and few large ones (walls near the camera).
#include "render/TriangleFillPlain.h"
#include "tests/support/Scenes.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace
{
using render::ScreenVertex;

struct Triangles
{
    std::vector<ScreenVertex> Corners;
    render::Picture Picture;
    support::View View{1200, 900};

    // Sizes up to `size` pixels, `number` of them; depths such that about half of what overlaps is hidden.
    Triangles(int number, int size)
    {
        base::Random random;
        random.Seed(11);
        Picture = support::Noise(random, 256, 256, 0.02);
        for (int i = 0; i < number; ++i)
        {
            const int x = support::DrawWhole(random, 0, 1200), y = support::DrawWhole(random, 0, 900);
            for (int k = 0; k < 3; ++k)
                Corners.push_back({x + support::DrawWhole(random, -size, size),
                                   y + support::DrawWhole(random, -size, size),
                                   static_cast<float>(support::Draw(random, 1.0, 50.0)),
                                   support::Draw(random, 0.0, 255.0), support::Draw(random, 0.0, 255.0)});
        }
    }
};

template <bool Textured, bool Fast> void Fill(benchmark::State& state)
{
    Triangles world(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    render::Screen& screen = world.View.Screen;
    const base::ConstSurface texture = render::MakeSurface(world.Picture.Pixels, 256, 256);
    const base::Rgb colour{10, 20, 30};
    for (auto _ : state)
    {
        state.PauseTiming();
        std::fill(screen.Depth.Cells.begin(), screen.Depth.Cells.end(), render::FarDepth);
        state.ResumeTiming();
        for (std::size_t i = 0; i + 2 < world.Corners.size(); i += 3)
        {
            const ScreenVertex &a = world.Corners[i], &b = world.Corners[i + 1], &c = world.Corners[i + 2];
            if constexpr (Textured)
                Fast ? FillTriTex(screen, a, b, c, texture) : FillTriTexPlain(screen, a, b, c, texture);
            else
                Fast ? FillTriFlat(screen, a, b, c, colour) : FillTriFlatPlain(screen, a, b, c, colour);
        }
    }
}

void Sizes(benchmark::internal::Benchmark* bench)
{
    bench->ArgNames({"number", "size"})->Args({5000, 8})->Args({20, 400})->Unit(benchmark::kMillisecond);
}
}

BENCHMARK(Fill<false, false>)->Name("FlatPlain")->Apply(Sizes);
BENCHMARK(Fill<false, true>)->Name("Flat")->Apply(Sizes);
BENCHMARK(Fill<true, false>)->Name("TexturedPlain")->Apply(Sizes);
BENCHMARK(Fill<true, true>)->Name("Textured")->Apply(Sizes);
