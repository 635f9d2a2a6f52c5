// SPDX-License-Identifier: Zlib
#include "render/wide/Kernels.h"

#define VELKAR_WIDE portable
#include "render/wide/Routines.h"
#undef VELKAR_WIDE
#define VELKAR_WIDE sse2
#include "render/wide/Routines.h"
#undef VELKAR_WIDE
#define VELKAR_WIDE avx
#include "render/wide/Routines.h"
#undef VELKAR_WIDE

namespace render
{
namespace
{
#define VELKAR_KERNELS(name, set)                                                                                      \
    {                                                                                                                  \
        name, set::DrawGroundBand, set::MayShow, set::FillTriFlat, set::FillTriTex, set::LayOver, set::TransformPoints \
    }
constexpr Kernels All[] = {
    VELKAR_KERNELS("portable", portable),
#ifdef VELKAR_X86
    VELKAR_KERNELS("SSE2", sse2),
    VELKAR_KERNELS("AVX", avx),
#endif
};
}

std::span<const Kernels> RunnableKernels()
{
    const std::span<const Kernels> all = All;
#ifdef VELKAR_X86
    // SSE2 is what the whole program is compiled for.
    if (!__builtin_cpu_supports("avx"))
        return all.first(2);
#endif
    return all;
}
}
