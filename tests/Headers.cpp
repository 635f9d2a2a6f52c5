// SPDX-License-Identifier: Zlib
// Stands for the header files that all tests share: see CMakeLists.txt.
