// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FileSizeLimit.h"

#include "support/platform/ImportHook_windows.h"

#include <qt_windows.h>

namespace {
qint64 limit = 0;

/// Where a write would begin: given, or where the file stands.
qint64 offsetOf(HANDLE file, const OVERLAPPED *place)
{
    if (place != nullptr) {
        return static_cast<qint64>((quint64{place->OffsetHigh} << 32) | place->Offset);
    }
    LARGE_INTEGER position = {};
    SetFilePointerEx(file, LARGE_INTEGER{}, &position, FILE_CURRENT);
    return position.QuadPart;
}

BOOL WINAPI writeOnFullDisk(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written,
                            LPOVERLAPPED place)
{
    if (GetFileType(file) == FILE_TYPE_DISK && offsetOf(file, place) + count > limit) {
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    return WriteFile(file, bytes, count, written, place);
}

const auto replacement = reinterpret_cast<ImportHook::Function>(&writeOnFullDisk);
} // namespace

/// The two that write files: Qt and SQLite.
struct FileSizeLimit::Previous
{
    ImportHook qt{L"Qt6Core.dll", "WriteFile", replacement};
    ImportHook sqlite{L"sqlite3.dll", "WriteFile", replacement};
};

FileSizeLimit::FileSizeLimit(qint64 bytes)
{
    limit = bytes;
    m_previous = std::make_unique<Previous>();
}

FileSizeLimit::~FileSizeLimit() = default;

QString FileSizeLimit::reason()
{
    return qt_error_string(ERROR_DISK_FULL);
}
