# SPDX-License-Identifier: Zlib
# The Windows program of 32 bits.
set(CMAKE_SYSTEM_PROCESSOR X86)
set(triple i686-w64-mingw32)
set(bits 32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
