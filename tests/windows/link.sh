#!/bin/sh
# SPDX-License-Identifier: Zlib
# Links a test program for Windows in the compiler's place: the compiler's own linker takes a quarter of a minute for what
# LLVM's does in half a second. What LLVM's does not link, the compiler's own does.
#   link.sh COMPILER-STEP ARGUMENT…
step=$1
shift
ld.lld "$@" 2>/dev/null || exec "$step" "$@"
