// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/FileSystem.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr mode_t ownerOnlyFile = 0600;
constexpr mode_t ownerOnlyFolder = 0700;

/// The call once more for as long as a signal cut it short.
template<typename Call>
int persistently(Call call)
{
    int result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// True also where the file system has no such call.
bool syncAndClose(int descriptor)
{
    const bool synced = persistently([descriptor] { return fsync(descriptor); }) == 0 ||
                        errno == EINVAL || errno == ENOTSUP || errno == EROFS;
    close(descriptor);
    return synced;
}
} // namespace

bool FileSystem::createPrivateFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int descriptor = persistently([&name] {
        return open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownerOnlyFile);
    });
    return descriptor >= 0 && close(descriptor) == 0;
}

bool FileSystem::createPrivateFolder(const QString &path)
{
    return mkdir(QFile::encodeName(path).constData(), ownerOnlyFolder) == 0;
}

bool FileSystem::syncFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int descriptor =
        persistently([&name] { return open(name.constData(), O_RDONLY | O_CLOEXEC); });
    return descriptor >= 0 && syncAndClose(descriptor);
}

bool FileSystem::syncFolder(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int descriptor = persistently(
        [&name] { return open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (descriptor < 0) {
        // A folder that may be entered and not listed: there is no way to ask for it.
        return errno == EACCES;
    }
    return syncAndClose(descriptor);
}

bool FileSystem::replaceBy(const QString &path, const QString &replacement)
{
    return std::rename(QFile::encodeName(replacement).constData(),
                       QFile::encodeName(path).constData()) == 0;
}

bool FileSystem::remove(const QString &path)
{
    return QFile::remove(path);
}

bool FileSystem::isSameFile(const QString &path, const QString &otherPath)
{
    struct stat file = {};
    struct stat other = {};
    return stat(QFile::encodeName(path).constData(), &file) == 0 &&
           stat(QFile::encodeName(otherPath).constData(), &other) == 0 &&
           file.st_dev == other.st_dev && file.st_ino == other.st_ino;
}

bool FileSystem::isVolumeRoot(const QString &folder)
{
    return QDir(folder).isRoot();
}
