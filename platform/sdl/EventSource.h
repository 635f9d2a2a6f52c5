// SPDX-License-Identifier: Zlib
// platform/sdl/EventSource.h: events that devices post from threads of their own, on the way through SDL's queue to the
// window's thread.
#pragma once
#include <SDL.h>

#include <cstdint>
#include <functional>
#include <map>

namespace sdl
{
// Whom the posted events go to. Belongs to the window's thread but for Post. Lives while SDL is initialised.
class PostedEvents
{
public:
    using Receiver = std::function<void(std::int32_t code, std::uint32_t number)>;

    PostedEvents() : Type(SDL_RegisterEvents(1)) {}
    PostedEvents(const PostedEvents&) = delete;
    PostedEvents& operator=(const PostedEvents&) = delete;

    // False where SDL has no event type left: nothing can be posted then.
    bool CanPost() const { return Type != NoType; }
    // On any thread. False where the queue takes no more.
    bool Post(std::uint32_t source, std::int32_t code, std::uint32_t number) const;

    std::uint32_t Add(Receiver receiver);
    void Remove(std::uint32_t source); // what is still queued arrives nowhere
    // Hands a posted event to its receiver. False: the event is of another kind.
    bool Dispatch(const SDL_Event& event);

private:
    static constexpr std::uint32_t NoType = 0xFFFFFFFFu;

    std::uint32_t Type;
    std::uint32_t Last = 0;
    std::map<std::uint32_t, Receiver> Receivers; // by source
};

// A device among the receivers, as long as it lives.
class EventSource
{
public:
    // `events` outlives it.
    EventSource(PostedEvents& events, PostedEvents::Receiver receiver)
        : Events(events), Id(events.Add(std::move(receiver)))
    {
    }
    ~EventSource() { Events.Remove(Id); }
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;

    bool CanPost() const { return Events.CanPost(); }
    // On any thread. False where the queue takes no more.
    bool Post(std::int32_t code, std::uint32_t number = 0) const { return Events.Post(Id, code, number); }

private:
    PostedEvents& Events;
    std::uint32_t Id;
};
}
