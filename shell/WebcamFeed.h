// SPDX-License-Identifier: Zlib
// shell/WebcamFeed.h: the webcam as the panel and the race use it: opened, one frame after another, closed; and the
// player's picture in the race view. Runs on the window's thread.
#pragma once
#include "platform/Platform.h"
#include "shell/Game.h"

namespace shell
{
class WebcamFeed final
{
public:
    // The platform must outlive this, and the game's buffers too: the device writes into them.
    WebcamFeed(Game& game, platform::Platform& platform, base::MessageSink& messages)
        : TheGame(game), Platform(platform), Messages(messages)
    {
    }
    ~WebcamFeed();
    WebcamFeed(const WebcamFeed&) = delete;
    WebcamFeed& operator=(const WebcamFeed&) = delete;

    bool OpenWebcam(); // false: what went wrong has been shown
    void CloseWebcam();
    // Whether a new frame has come; it is then in the webcam's picture, and the next one is asked for.
    bool TakeFrame();
    // A frame that has come, cut out of the room, goes into the display's picture.
    void ShowInset();

private:
    Game& TheGame; // the webcam, its backdrop, the display's picture, the shake, the draws
    platform::Platform& Platform;
    base::MessageSink& Messages;
};
}
