// SPDX-License-Identifier: Zlib
#include "platform/sdl/EventSource.h"

#include <utility>

namespace sdl
{
namespace
{
// A user event has room for a code and two pointers.
void* AsPointer(std::uint32_t number)
{
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(number));
}

std::uint32_t AsNumber(const void* pointer)
{
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(pointer));
}
}

bool PostedEvents::Post(std::uint32_t source, std::int32_t code, std::uint32_t number) const
{
    SDL_Event event = {};
    event.user.type = Type;
    event.user.code = code;
    event.user.data1 = AsPointer(number);
    event.user.data2 = AsPointer(source);
    return CanPost() && SDL_PushEvent(&event) > 0;
}

std::uint32_t PostedEvents::Add(Receiver receiver)
{
    Receivers[++Last] = std::move(receiver);
    return Last;
}

void PostedEvents::Remove(std::uint32_t source)
{
    Receivers.erase(source);
}

bool PostedEvents::Dispatch(const SDL_Event& event)
{
    if (!CanPost() || event.type != Type)
        return false;
    const auto found = Receivers.find(AsNumber(event.user.data2));
    if (found == Receivers.end())
        return true;
    const Receiver receiver = found->second; // a copy: a handler may end its device
    receiver(event.user.code, AsNumber(event.user.data1));
    return true;
}
}
