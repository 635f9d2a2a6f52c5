// SPDX-License-Identifier: Zlib
// platform/win32/EventQueue.h: events on their way to the game. The system calls a window procedure in the middle of
// other calls too (a new size, a message box), so procedures only post here; the game is notified when those calls have
// finished and the message loop delivers the queue. One queue for all windows and devices keeps the order among them.
// Belongs to the window's thread.
#pragma once
#include "platform/Platform.h"

#include <deque>
#include <functional>

namespace win32
{
class EventQueue
{
public:
    using Event = std::function<void()>; // notifies one receiver

    bool IsEmpty() const { return Waiting.empty(); }
    bool IsDelivering() const { return Delivering; }
    // Notifies of everything that waits, and of what is posted meanwhile.
    void Deliver();

    // `source` is whoever posts: Drop takes back what it has posted.
    void Post(const void* source, Event event) { Waiting.push_back({source, NotCoalesced, std::move(event)}); }
    // In place of the newest event, where that has the same source and kind. `kind` is at least 0.
    void PostLatest(const void* source, int kind, Event event);
    void Drop(const void* source);

private:
    static constexpr int NotCoalesced = -1;
    struct Entry
    {
        const void* Source;
        int Kind;
        Event Notify;
    };

    std::deque<Entry> Waiting;
    bool Delivering = false;
};

// The events of one window, posted to the queue. Sizes, paintings, motions and wishes to close are coalesced.
class QueuedWindowEvents final : public platform::WindowEvents
{
public:
    // Both outlive it. What it has posted is dropped at its end.
    QueuedWindowEvents(EventQueue& queue, platform::WindowEvents& receiver) : Queue(queue), Receiver(receiver) {}
    ~QueuedWindowEvents() override { Queue.Drop(this); }
    QueuedWindowEvents(const QueuedWindowEvents&) = delete;
    QueuedWindowEvents& operator=(const QueuedWindowEvents&) = delete;

    bool IsDelivering() const { return Queue.IsDelivering(); }

    void KeyDown(std::int16_t code) override;
    void KeyUp(std::int16_t code) override;
    void KeyPress(std::uint8_t code) override;
    void MouseDown(int button, platform::Point at) override;
    void MouseMove(int buttons, platform::Point at) override;
    void MouseUp(int button, platform::Point at) override;
    void Resized() override;
    void Paint() override;
    bool CloseAsked() override; // true; the receiver's answer comes with the delivery

private:
    enum Kind
    {
        Motion,
        Resizing,
        Painting,
        Closing
    };

    EventQueue& Queue;
    platform::WindowEvents& Receiver;
};
}
