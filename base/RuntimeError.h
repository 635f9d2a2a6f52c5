// SPDX-License-Identifier: Zlib
// base/RuntimeError.h: what goes wrong at run time, by number, with the text an Italian system shows.
#pragma once
#include <cstdint>
#include <string>

namespace base
{
inline constexpr std::int32_t ErrorOverflow = 6;
inline constexpr std::int32_t ErrorMemory = 7;
inline constexpr std::int32_t ErrorIndex = 9;
inline constexpr std::int32_t ErrorType = 13;
inline constexpr std::int32_t ErrorFileNotFound = 53;
inline constexpr std::int32_t ErrorPastEnd = 62;
inline constexpr std::int32_t ErrorAccess = 75;
inline constexpr std::int32_t ErrorPathNotFound = 76;
inline constexpr std::int32_t ErrorFormat = 514; // raised by the loaders with a description of their own

// The description of a number above; "Errore definito dall'applicazione o dall'oggetto" for any other.
std::string ErrorDescription(std::int32_t number);

struct RuntimeError
{
    std::int32_t Number = 0;
    std::string Description; // UTF-8

    explicit RuntimeError(std::int32_t number) : Number(number), Description(ErrorDescription(number)) {}
    RuntimeError(std::int32_t number, std::string description) : Number(number), Description(std::move(description)) {}
};
}
