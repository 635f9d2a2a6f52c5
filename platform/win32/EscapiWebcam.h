// SPDX-License-Identifier: Zlib
// platform/win32/EscapiWebcam.h: the webcam through a capture library, escapivb.dll and escapi.dll, that is looked up
// at run time: beside the program, then in the system's folder. A library or a function that is missing means no
// device.
#pragma once
#include "platform/Webcam.h"

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <type_traits>

namespace win32
{
class EscapiWebcam final : public platform::Webcam
{
public:
    explicit EscapiWebcam(std::filesystem::path program) : Program(std::move(program)) {} // its folder
    ~EscapiWebcam() override;
    EscapiWebcam(const EscapiWebcam&) = delete;
    EscapiWebcam& operator=(const EscapiWebcam&) = delete;

    std::int32_t SetupCapture() override;
    bool InitCapture(const platform::CaptureParams& params) override;
    void DoCapture() override;
    bool IsCaptureDone() override;
    void DeinitCapture() override;

private:
    // The library's own record. It keeps its address.
    struct Parameters
    {
        std::uint8_t* Target = nullptr;
        std::int32_t Width = 0, Height = 0;
    };
    struct Unload
    {
        void operator()(HMODULE module) const { FreeLibrary(module); }
    };
    using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, Unload>;

    Library Load(const wchar_t* name) const;
    bool LoadBoth();

    std::filesystem::path Program;
    Library Opening, Frames; // escapivb.dll, escapi.dll
    FARPROC Setup = nullptr, Init = nullptr, DoFirst = nullptr, Deinit = nullptr, Do = nullptr, IsDone = nullptr;
    Parameters Params;
    bool IsLoaded = false, IsOpen = false, HasAsked = false;
};
}
