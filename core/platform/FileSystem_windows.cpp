// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/FileSystem.h"

#include <QDir>

#include <qt_windows.h>

#include <string>

namespace {
/// The form that knows no limit of 260 characters.
std::wstring nativePath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(QDir().absoluteFilePath(path)));
    const bool isShare = native.startsWith(QLatin1String("\\\\"));
    return (isShare ? QStringLiteral("\\\\?\\UNC") + native.mid(1)
                    : QStringLiteral("\\\\?\\") + native)
        .toStdWString();
}
} // namespace

// A file and a folder inherit who may read them: below a user's profile nobody else may.
bool FileSystem::createPrivateFile(const QString &path)
{
    const HANDLE file = CreateFileW(nativePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                    nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    return file != INVALID_HANDLE_VALUE && CloseHandle(file) != 0;
}

bool FileSystem::createPrivateFolder(const QString &path)
{
    return CreateDirectoryW(nativePath(path).c_str(), nullptr) != 0;
}

bool FileSystem::syncFile(const QString &path)
{
    const HANDLE file = CreateFileW(nativePath(path).c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool synced = FlushFileBuffers(file) != 0;
    CloseHandle(file);
    return synced;
}

// NTFS journals its names, and a folder cannot be flushed. Renames below are written through.
bool FileSystem::syncFolder(const QString & /*path*/)
{
    return true;
}

bool FileSystem::replaceBy(const QString &path, const QString &replacement)
{
    return MoveFileExW(nativePath(replacement).c_str(), nativePath(path).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}
