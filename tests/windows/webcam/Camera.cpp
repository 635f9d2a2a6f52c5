// SPDX-License-Identifier: Zlib
// escapi.dll
#include "tests/windows/webcam/Camera.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <chrono>
#include <string_view>
#include <thread>

namespace camera
{
namespace
{
constexpr auto Exposure = std::chrono::milliseconds(20);

bool IsOfKind(std::string_view kind)
{
    std::array<char, 16> value = {};
    const DWORD length = GetEnvironmentVariableA("VELKAR_WEBCAM", value.data(), static_cast<DWORD>(value.size()));
    return std::string_view(value.data(), length < value.size() ? length : 0) == kind;
}

class Camera
{
public:
    // The library's functions have no argument for it. Never destroyed: a library that is unloaded must not wait.
    static Camera& TheOne()
    {
        static Camera& camera = *new Camera;
        return camera;
    }

    bool Open(const Parameters& parameters)
    {
        Close();
        if (IsOfKind("none") || IsOfKind("busy"))
            return false;
        Params = parameters;
        Number = 0;
        return true;
    }
    void Close()
    {
        if (Worker.joinable())
            Worker.join();
        Params = {};
        Done = false;
    }
    // The caller's memory is written on a thread of the camera's own.
    void Ask()
    {
        if (Worker.joinable())
            Worker.join();
        Done = false;
        if (Params.Target == nullptr || IsOfKind("silent"))
            return;
        Worker = std::thread(
            [this]
            {
                std::this_thread::sleep_for(Exposure);
                Expose();
                Done = true;
            });
    }
    bool IsDone() const { return Done; }

private:
    void Expose()
    {
        const std::int32_t left = SquareAt(Number++, Params.Width), top = (Params.Height - Square) / 2;
        std::uint8_t* at = Params.Target;
        for (std::int32_t y = 0; y < Params.Height; ++y)
            for (std::int32_t x = 0; x < Params.Width; ++x, at += 4)
            {
                const bool white = x >= left && x < left + Square && y >= top && y < top + Square;
                const Colour colour = white ? Colour{255, 255, 255} : BackgroundAt(x, y);
                at[0] = colour.Blue;
                at[1] = colour.Green;
                at[2] = colour.Red;
                at[3] = 0xAA;
            }
    }

    Parameters Params = {};
    std::int32_t Number = 0;
    std::atomic<bool> Done = false;
    std::thread Worker;
};
}
}

// What escapivb.dll is made of.
CAMERA_EXPORT std::int32_t cameraCount()
{
    return camera::IsOfKind("none") ? 0 : 1;
}

CAMERA_EXPORT std::int32_t cameraOpen(const camera::Parameters* parameters)
{
    return camera::Camera::TheOne().Open(*parameters) ? 1 : 0;
}

CAMERA_EXPORT void cameraClose()
{
    camera::Camera::TheOne().Close();
}

CAMERA_EXPORT void cameraAsk()
{
    camera::Camera::TheOne().Ask();
}

CAMERA_EXPORT std::int32_t cameraIsDone()
{
    return camera::Camera::TheOne().IsDone() ? 1 : 0;
}

// A plain name on 32 bits too, whose caller clears the argument away; the other clears its own away.
CAMERA_EXPORT void doCapture(std::int32_t device)
{
    if (device == 0)
        cameraAsk();
}

CAMERA_EXPORT std::int32_t WINAPI isCaptureDone(std::int32_t device)
{
    return device == 0 ? cameraIsDone() : 0;
}
