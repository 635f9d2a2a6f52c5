// SPDX-License-Identifier: Zlib
// shell/Application.h: one run of the program: the splash window, then Form1.
#pragma once
#include "platform/Platform.h"
#include "shell/Form1.h"

#include <memory>
#include <vector>

namespace shell
{
class Application final : public platform::Program
{
public:
    explicit Application(platform::Platform& platform);
    ~Application() override;

    // The splash appears and Form1 loads behind it. A second instance ends at once, without a word.
    // Where draws are given, the game's uniform draws cycle through them from the beginning.
    void Start(std::vector<double> draws = {});
    Form1* Main() { return TheForm1.get(); } // null before Start and in a second instance

    // platform::Program. The splash timer (1000 ms) hides the splash and shows Form1.
    std::uint32_t NextTimer() override;
    void RunTimers() override;
    bool Ended() override;

private:
    class Splash; // frmLogo
    platform::Platform& ThePlatform;
    std::unique_ptr<Splash> TheSplash;
    std::unique_ptr<Form1> TheForm1;
    bool IsSecondInstance = false;
};
}
