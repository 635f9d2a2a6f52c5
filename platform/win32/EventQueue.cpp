// SPDX-License-Identifier: Zlib
#include "platform/win32/EventQueue.h"

#include <utility>

namespace win32
{
void EventQueue::Deliver()
{
    Delivering = true;
    // A handler may wait for events itself: an event has left the queue before its receiver is notified.
    while (!Waiting.empty())
    {
        const Event notify = std::move(Waiting.front().Notify);
        Waiting.pop_front();
        notify();
    }
    Delivering = false;
}

void EventQueue::PostLatest(const void* source, int kind, Event event)
{
    if (!Waiting.empty() && Waiting.back().Source == source && Waiting.back().Kind == kind)
        Waiting.back().Notify = std::move(event);
    else
        Waiting.push_back({source, kind, std::move(event)});
}

void EventQueue::Drop(const void* source)
{
    std::erase_if(Waiting, [source](const Entry& entry) { return entry.Source == source; });
}

void QueuedWindowEvents::KeyDown(std::int16_t code)
{
    Queue.Post(this, [this, code] { Receiver.KeyDown(code); });
}

void QueuedWindowEvents::KeyUp(std::int16_t code)
{
    Queue.Post(this, [this, code] { Receiver.KeyUp(code); });
}

void QueuedWindowEvents::KeyPress(std::uint8_t code)
{
    Queue.Post(this, [this, code] { Receiver.KeyPress(code); });
}

void QueuedWindowEvents::MouseDown(int button, platform::Point at)
{
    Queue.Post(this, [this, button, at] { Receiver.MouseDown(button, at); });
}

void QueuedWindowEvents::MouseMove(int buttons, platform::Point at)
{
    Queue.PostLatest(this, Motion, [this, buttons, at] { Receiver.MouseMove(buttons, at); });
}

void QueuedWindowEvents::MouseUp(int button, platform::Point at)
{
    Queue.Post(this, [this, button, at] { Receiver.MouseUp(button, at); });
}

void QueuedWindowEvents::Resized()
{
    Queue.PostLatest(this, Resizing, [this] { Receiver.Resized(); });
}

void QueuedWindowEvents::Paint()
{
    Queue.PostLatest(this, Painting, [this] { Receiver.Paint(); });
}

bool QueuedWindowEvents::CloseAsked()
{
    Queue.PostLatest(this, Closing, [this] { Receiver.CloseAsked(); });
    return true;
}
}
