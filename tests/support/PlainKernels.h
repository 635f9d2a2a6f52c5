// SPDX-License-Identifier: Zlib
// tests/support/PlainKernels.h: the plain pixel loops as a set, for screens that judge others.
#pragma once
#include "render/GroundPlain.h"
#include "render/Layers.h"
#include "render/TriangleFillPlain.h"
#include "render/Vertices.h"
#include "render/wide/Kernels.h"

namespace support
{
inline constexpr render::Kernels PlainKernels = {
    "plain",
    [](const render::GroundView& view, const render::Band& band, render::StopCheck&) { GroundPlain(view, band); },
    [](const render::Canvas&, const render::ScreenVertex&, const render::ScreenVertex&, const render::ScreenVertex&)
    { return true; },
    render::FillTriFlatPlain,
    render::FillTriTexPlain,
    render::LayOverPlain,
    render::TransformPointsPlain};
}
