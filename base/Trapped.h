// SPDX-License-Identifier: Zlib
// base/Trapped.h: the one place where a run-time error becomes a message box.
#pragma once
#include "base/RuntimeError.h"

#include <string>
#include <string_view>

namespace base
{
enum class Icon
{
    Critical,
    Exclamation,
    Information
};

// Title of the boxes that have none of their own.
inline constexpr const char* DefaultTitle = "Velkar";

// Whoever shows message boxes. Texts are UTF-8, lines separated by "\r\n"; returns when dismissed.
struct MessageSink
{
    virtual ~MessageSink() = default;
    virtual void ShowMessage(Icon icon, const std::string& title, const std::string& text) = 0;
};

// Call inside a catch only. Critical icon, title "Errore 514", text "… in LoadObject".
void ReportError(MessageSink& messages, std::string_view procedure);

// Runs body. A thrown error is shown and swallowed: what body built so far stays. False where one was thrown.
template <class Body> bool Trapped(MessageSink& messages, std::string_view procedure, Body&& body)
{
    try
    {
        body();
        return true;
    }
    catch (...)
    {
        ReportError(messages, procedure);
        return false;
    }
}

// Runs body. A thrown error is passed over without a word, where somebody else says what is to be said. False then.
template <class Body> bool Attempted(Body&& body)
{
    try
    {
        body();
        return true;
    }
    catch (...)
    {
        return false;
    }
}
}
