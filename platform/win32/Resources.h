// SPDX-License-Identifier: Zlib
/* platform/win32/Resources.h: numbers of the program's resources, for the resource compiler as well. */
#define VELKAR_ICON 1
