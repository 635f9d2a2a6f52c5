// platform/win32/EventQueue.h: what a window has been told, until its message loop delivers it. Windows calls a window
// procedure in the middle of other calls too (a new size, a message box); the game hears of it when it has finished.
#pragma once
#include "platform/Platform.h"

#include <deque>

namespace platform
{
class EventQueue final : public WindowEvents
{
public:
    explicit EventQueue(WindowEvents& receiver) : Receiver(receiver) {}

    bool IsEmpty() const { return Waiting.empty(); }
    // Tells the receiver everything that waits, and what comes meanwhile.
    void Deliver();

    // Kept. A size, a picture or a motion that has not been told yet is told once.
    void KeyDown(std::int16_t code) override;
    void KeyUp(std::int16_t code) override;
    void KeyPress(std::uint8_t code) override;
    void MouseDown(int button, Point at) override;
    void MouseMove(int buttons, Point at) override;
    void MouseUp(int button, Point at) override;
    void Resized() override;
    void Paint() override;
    bool CloseAsked() override; // whether it closes is seen when it has been told
    void WaveDone(std::int32_t user) override;
    void MediaDone(std::uint32_t number, std::int32_t code) override;

private:
    enum class Kind
    {
        KeyDown,
        KeyUp,
        KeyPress,
        MouseDown,
        MouseMove,
        MouseUp,
        Resized,
        Paint,
        CloseAsked,
        WaveDone,
        MediaDone
    };
    struct Told
    {
        Kind What;
        std::int32_t Code = 0; // of the key, the button, the buffer, the notification
        Point At;
        std::uint32_t Number = 0;
    };
    void Add(const Told& told) { Waiting.push_back(told); }
    void AddOnce(const Told& told); // in place of the last, where it is of its kind
    void Tell(const Told& told);

    WindowEvents& Receiver;
    std::deque<Told> Waiting;
};
}
