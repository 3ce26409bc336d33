// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/FileSystem.h"

#include <QDir>

#include <qt_windows.h>

#include <optional>
#include <string>

namespace {
constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// The one full name that the system itself would make of it, without the dots and blanks at the
/// end of a name that it leaves out.
std::wstring fullPath(const QString &path)
{
    const std::wstring given = QDir::toNativeSeparators(path).toStdWString();
    std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

/// Long names in the form that knows no limit of 260 characters, 248 for a folder.
std::wstring nativePath(const QString &path)
{
    constexpr std::size_t longestPlain = 247;
    const std::wstring full = fullPath(path);
    if (full.size() <= longestPlain || full.starts_with(L"\\\\?\\")) {
        return full;
    }
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

bool isBusy(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_ACCESS_DENIED || error == ERROR_USER_MAPPED_FILE;
}

/// The call once more for two thirds of a second: scanners and indexers open what has just been
/// written, for moments, and an open file can neither be renamed nor removed.
template<typename Call>
bool persistently(Call call)
{
    constexpr DWORD longestPauseMs = 320;
    bool succeeded = call();
    for (DWORD pauseMs = 10; !succeeded && isBusy(GetLastError()) && pauseMs <= longestPauseMs;
         pauseMs *= 2) {
        Sleep(pauseMs);
        succeeded = call();
    }
    return succeeded;
}

class FileHandle final
{
public:
    FileHandle(const QString &path, DWORD access, DWORD disposition, DWORD flags)
        : m_handle(CreateFileW(nativePath(path).c_str(), access, sharedWithAll, nullptr,
                               disposition, flags, nullptr))
    {}
    ~FileHandle()
    {
        if (isOpen()) {
            CloseHandle(m_handle);
        }
    }
    Q_DISABLE_COPY_MOVE(FileHandle)

    [[nodiscard]] bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

std::optional<BY_HANDLE_FILE_INFORMATION> identityOf(const QString &path)
{
    // With this flag a folder opens too.
    const FileHandle file(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    BY_HANDLE_FILE_INFORMATION identity = {};
    if (!file.isOpen() || GetFileInformationByHandle(file.get(), &identity) == 0) {
        return std::nullopt;
    }
    return identity;
}

void makeWritable(const std::wstring &name)
{
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        SetFileAttributesW(name.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
}
} // namespace

// A file and a folder inherit who may read them: below a user's profile nobody else may.
bool FileSystem::createPrivateFile(const QString &path)
{
    return FileHandle(path, GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL).isOpen();
}

bool FileSystem::createPrivateFolder(const QString &path)
{
    return CreateDirectoryW(nativePath(path).c_str(), nullptr) != 0;
}

bool FileSystem::syncFile(const QString &path)
{
    const FileHandle file(path, GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    return file.isOpen() && FlushFileBuffers(file.get()) != 0;
}

// NTFS journals its names, and a folder cannot be flushed. Renames below are written through.
bool FileSystem::syncFolder(const QString & /*path*/)
{
    return true;
}

bool FileSystem::replaceBy(const QString &path, const QString &replacement)
{
    const std::wstring from = nativePath(replacement);
    const std::wstring to = nativePath(path);
    return persistently([&] {
        return MoveFileExW(from.c_str(), to.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
}

bool FileSystem::remove(const QString &path)
{
    const std::wstring name = nativePath(path);
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return false;
    }
    makeWritable(name);
    const bool removed = persistently([&name] { return DeleteFileW(name.c_str()) != 0; });
    if (!removed) {
        SetFileAttributesW(name.c_str(), attributes);
    }
    return removed;
}

bool FileSystem::isSameFile(const QString &path, const QString &otherPath)
{
    const auto file = identityOf(path);
    const auto other = identityOf(otherPath);
    return file && other && file->dwVolumeSerialNumber == other->dwVolumeSerialNumber &&
           file->nFileIndexHigh == other->nFileIndexHigh &&
           file->nFileIndexLow == other->nFileIndexLow;
}

bool FileSystem::isVolumeRoot(const QString &folder)
{
    std::wstring full = fullPath(folder);
    if (!full.ends_with(L'\\')) {
        full += L'\\';
    }
    std::wstring root(full.size() + 1, L'\0');
    // A folder that cannot be asked about is left alone like a root.
    return GetVolumePathNameW(full.c_str(), root.data(), static_cast<DWORD>(root.size())) == 0 ||
           CompareStringOrdinal(root.c_str(), -1, full.c_str(), -1, TRUE) == CSTR_EQUAL;
}
