// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/OddEntry.h"

#include <qt_windows.h>

bool makeOddEntry(const QString &path)
{
    constexpr DWORD hiddenFromUsers =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY;
    const HANDLE file = CreateFileW(path.toStdWString().c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_NEW, hiddenFromUsers, nullptr);
    return file != INVALID_HANDLE_VALUE && CloseHandle(file) != 0;
}
