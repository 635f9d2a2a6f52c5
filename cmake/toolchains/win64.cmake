# SPDX-License-Identifier: Zlib
# The Windows program of 64 bits.
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(triple x86_64-w64-mingw32)
set(bits 64)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
