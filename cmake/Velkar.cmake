# SPDX-License-Identifier: Zlib
# Compiler settings shared by every target of the project.
find_package(Threads REQUIRED)

add_library(velkar_flags INTERFACE)
target_include_directories(velkar_flags INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(velkar_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
    # The same script must give the same bytes everywhere: no fused multiply-add, no reordering.
    -ffp-contract=off -fno-fast-math
    # GCC 12 pairs straight-line conversions and then drops a double's way through single precision.
    -fno-tree-slp-vectorize
    # With clang a part of -Wconversion, with GCC a thing of its own.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86|AMD64")
    # The default of 32-bit compilers keeps extra bits in x87 registers.
    target_compile_options(velkar_flags INTERFACE -msse2 -mfpmath=sse)
endif()
if(WIN32)
    target_compile_definitions(velkar_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
endif()
if(VELKAR_SANITIZE)
    target_compile_options(velkar_flags INTERFACE
        -fsanitize=${VELKAR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velkar_flags INTERFACE -fsanitize=${VELKAR_SANITIZE})
endif()
if(VELKAR_FUZZ)
    target_compile_options(velkar_flags INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velkar_flags INTERFACE -fsanitize=address,undefined)
endif()

# The standard library's headers, parsed once for all of the project's own libraries. Off, every file stands by what it
# includes itself.
option(VELKAR_PRECOMPILE "Parse the standard library's headers once" ON)
if(VELKAR_PRECOMPILE)
    file(WRITE "${CMAKE_BINARY_DIR}/StandardHeaders.cpp" "")
    add_library(standard_headers OBJECT "${CMAKE_BINARY_DIR}/StandardHeaders.cpp")
    target_link_libraries(standard_headers PRIVATE velkar_flags)
    target_precompile_headers(standard_headers PRIVATE <algorithm> <array> <atomic> <chrono> <cmath> <condition_variable>
        <cstdint> <cstring> <filesystem> <functional> <limits> <memory> <mutex> <optional> <span> <string> <string_view>
        <thread> <tuple> <utility> <vector>)
endif()

# Several sources of a target at a time, where that is quicker.
function(velkar_unity batch)
    foreach(target IN LISTS ARGN)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${batch})
        # Sources that are included are taken for headers, in which names of one file alone would be a mistake.
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-subobject-linkage>)
    endforeach()
endfunction()
# For the game's own libraries, where the build is not about them.
function(velkar_game_unity)
    if(VELKAR_UNITY_GAME)
        velkar_unity(8 ${ARGN})
    endif()
endfunction()

function(velkar_precompiled)
    if(VELKAR_PRECOMPILE)
        foreach(target IN LISTS ARGN)
            target_precompile_headers(${target} REUSE_FROM standard_headers)
        endforeach()
    endif()
endfunction()
