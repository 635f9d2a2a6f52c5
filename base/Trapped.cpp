// SPDX-License-Identifier: Zlib
#include "base/Trapped.h"

#include <new>
#include <stdexcept>

namespace base
{
namespace
{
// The error being handled, in the game's own numbers.
RuntimeError Current()
{
    try
    {
        throw;
    }
    catch (const RuntimeError& error)
    {
        return error;
    }
    catch (const std::bad_alloc&)
    {
        return RuntimeError(ErrorMemory);
    }
    catch (const std::length_error&)
    {
        return RuntimeError(ErrorMemory);
    }
    catch (const std::out_of_range&)
    {
        return RuntimeError(ErrorIndex);
    }
}
}

void ReportError(MessageSink& messages, std::string_view procedure)
{
    const RuntimeError error = Current();
    std::string text = error.Description;
    // Deliberate: one procedure stands without the blank before "in".
    text += procedure == "WidthBytes" ? "in " : " in ";
    text += procedure;
    messages.ShowMessage(Icon::Critical, "Errore " + std::to_string(error.Number), text);
}
}
