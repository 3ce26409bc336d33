# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
#
# CMake's toolchain file for 64-bit Windows programs: compilers from Debian's mingw-w64, everything else
# from the SDK that scripts/windows-sdk unpacks or makes.
if(DEFINED ENV{ZELVAN_WINDOWS_SDK})
    set(zelvan_sdk "$ENV{ZELVAN_WINDOWS_SDK}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(zelvan_sdk "$ENV{XDG_CACHE_HOME}/zelvan/zelvan-windows-sdk")
else()
    set(zelvan_sdk "$ENV{HOME}/.cache/zelvan/zelvan-windows-sdk")
endif()

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH "${zelvan_sdk}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_PREFIX_PATH "${zelvan_sdk}")
set(ENV{PKG_CONFIG_LIBDIR} "${zelvan_sdk}/lib/pkgconfig")

# Qt's tools that run here have to be of the very version that is linked. While the SDK itself is made
# they come from the command line.
if(EXISTS "${zelvan_sdk}/host")
    set(QT_HOST_PATH "${zelvan_sdk}/host" CACHE PATH "")
    set(QT_HOST_PATH_CMAKE_DIR "${QT_HOST_PATH}/lib/x86_64-linux-gnu/cmake" CACHE PATH "")
endif()

# What CMake and CTest run of the built programs, they run in Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/run-in-wine")
