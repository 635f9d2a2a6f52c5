#include "platform/win32/EventQueue.h"

namespace platform
{
void EventQueue::Deliver()
{
    // A handler may wait for events itself: what it is told is gone from here before.
    while (!Waiting.empty())
    {
        const Told told = Waiting.front();
        Waiting.pop_front();
        Tell(told);
    }
}

void EventQueue::Tell(const Told& told)
{
    switch (told.What)
    {
    case Kind::KeyDown:
        return Receiver.KeyDown(static_cast<std::int16_t>(told.Code));
    case Kind::KeyUp:
        return Receiver.KeyUp(static_cast<std::int16_t>(told.Code));
    case Kind::KeyPress:
        return Receiver.KeyPress(static_cast<std::uint8_t>(told.Code));
    case Kind::MouseDown:
        return Receiver.MouseDown(told.Code, told.At);
    case Kind::MouseMove:
        return Receiver.MouseMove(told.Code, told.At);
    case Kind::MouseUp:
        return Receiver.MouseUp(told.Code, told.At);
    case Kind::Resized:
        return Receiver.Resized();
    case Kind::Paint:
        return Receiver.Paint();
    case Kind::CloseAsked:
        Receiver.CloseAsked();
        return;
    case Kind::WaveDone:
        return Receiver.WaveDone(told.Code);
    case Kind::MediaDone:
        return Receiver.MediaDone(told.Number, told.Code);
    }
}

void EventQueue::AddOnce(const Told& told)
{
    if (!Waiting.empty() && Waiting.back().What == told.What)
        Waiting.back() = told;
    else
        Add(told);
}

void EventQueue::KeyDown(std::int16_t code)
{
    Add({Kind::KeyDown, code, {}});
}

void EventQueue::KeyUp(std::int16_t code)
{
    Add({Kind::KeyUp, code, {}});
}

void EventQueue::KeyPress(std::uint8_t code)
{
    Add({Kind::KeyPress, code, {}});
}

void EventQueue::MouseDown(int button, Point at)
{
    Add({Kind::MouseDown, button, at});
}

void EventQueue::MouseMove(int buttons, Point at)
{
    AddOnce({Kind::MouseMove, buttons, at});
}

void EventQueue::MouseUp(int button, Point at)
{
    Add({Kind::MouseUp, button, at});
}

void EventQueue::Resized()
{
    AddOnce({Kind::Resized, 0, {}});
}

void EventQueue::Paint()
{
    AddOnce({Kind::Paint, 0, {}});
}

bool EventQueue::CloseAsked()
{
    AddOnce({Kind::CloseAsked, 0, {}});
    return true;
}

void EventQueue::WaveDone(std::int32_t user)
{
    Add({Kind::WaveDone, user, {}});
}

void EventQueue::MediaDone(std::uint32_t number, std::int32_t code)
{
    Add({Kind::MediaDone, code, {}, number});
}
}
