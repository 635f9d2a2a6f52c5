// SPDX-License-Identifier: Zlib
#include "bench/ShippedFrames.h"

#include "render/RenderFrame.h"

#include <thread>

namespace bench
{
const char* FilterName(std::int16_t filter)
{
    constexpr const char* names[] = {"nessuno", "lineare", "anisotropico"};
    return filter >= 0 && filter < 3 ? names[filter] : "";
}

ShippedFrames::ShippedFrames() : Cameras(Race.RecordPath(1600)) {}

void ShippedFrames::Prepare(std::int32_t width, std::int32_t height, std::int16_t filter)
{
    shell::Game& game = Race.Game();
    game.Screen.ThreadCount = static_cast<std::int16_t>(2 * std::thread::hardware_concurrency() + 1);
    render::ApplyResolution(Race.Form().Window(), game.Screen, game.Camera, width, height);
    game.Screen.TxtFilter = filter;
}

const std::uint8_t* ShippedFrames::Draw(base::PhaseClock* clock)
{
    shell::Game& game = Race.Game();
    render::Camera camera = Cameras[Next++ % Cameras.size()];
    // The path was recorded at another resolution: the same angle of view.
    camera.Zoom = camera.Zoom / camera.MinZoom * game.Camera.MinZoom;
    render::RenderFrame(game.Scene, camera, game.Screen, game.GroundThreads, clock);
    return game.Screen.Frame.Bytes.data();
}
}
