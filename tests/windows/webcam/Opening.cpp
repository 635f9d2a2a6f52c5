// SPDX-License-Identifier: Zlib
// escapivb.dll
#include "tests/windows/webcam/Camera.h"

#include <windows.h>

extern "C"
{
    __declspec(dllimport) std::int32_t cameraCount();
    __declspec(dllimport) std::int32_t cameraOpen(const camera::Parameters* parameters);
    __declspec(dllimport) void cameraClose();
    __declspec(dllimport) void cameraAsk();
    __declspec(dllimport) std::int32_t cameraIsDone();
}

CAMERA_EXPORT std::int32_t WINAPI setupESCAPIVB()
{
    return cameraCount();
}

CAMERA_EXPORT std::int32_t WINAPI initCaptureVB(std::int32_t device, const camera::Parameters* parameters)
{
    return device == 0 ? cameraOpen(parameters) : 0;
}

CAMERA_EXPORT void WINAPI doCaptureVB(std::int32_t device)
{
    if (device == 0)
        cameraAsk();
}

CAMERA_EXPORT std::int32_t WINAPI isCaptureDoneVB(std::int32_t device)
{
    return device == 0 ? cameraIsDone() : 0;
}

CAMERA_EXPORT void WINAPI deinitCaptureVB(std::int32_t device)
{
    if (device == 0)
        cameraClose();
}
