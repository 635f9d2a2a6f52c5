# Compiler settings shared by every target of the project.
find_package(Threads REQUIRED)

add_library(velkar_flags INTERFACE)
target_include_directories(velkar_flags INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(velkar_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
    # The same script must give the same bytes everywhere: no fused multiply-add, no reordering.
    -ffp-contract=off -fno-fast-math
    # GCC 12 pairs straight-line conversions and then drops a double's way through single precision.
    -fno-tree-slp-vectorize)
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86|AMD64")
    # The default of 32-bit compilers keeps extra bits in x87 registers.
    target_compile_options(velkar_flags INTERFACE -msse2 -mfpmath=sse)
endif()
if(VELKAR_SANITIZE)
    target_compile_options(velkar_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velkar_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VELKAR_FUZZ)
    target_compile_options(velkar_flags INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
        -Wno-sign-conversion) # with clang, part of -Wconversion
    target_link_options(velkar_flags INTERFACE -fsanitize=address,undefined)
endif()
