// SPDX-License-Identifier: Zlib
// tests/support/Messages.h: a message sink that remembers what it was shown.
#pragma once
#include "base/Trapped.h"

#include <string>
#include <vector>

namespace support
{
struct Box
{
    base::Icon Icon;
    std::string Title, Text;
};

struct Messages : base::MessageSink
{
    std::vector<Box> Boxes;
    void ShowMessage(base::Icon icon, const std::string& title, const std::string& text) override
    {
        Boxes.push_back({icon, title, text});
    }
};
}
