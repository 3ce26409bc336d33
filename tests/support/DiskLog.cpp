// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/DiskLog.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include <cerrno>
#include <dlfcn.h>

namespace {
struct Record
{
    QMutex mutex;
    bool isListening = false;
    QStringList calls;
    QString failingPath;
    /// Nothing fails before a rename to it, where it is not empty.
    QString awaitedRename;
    bool linksFail = false;
    QString awaitedSync;
    QString folderOfFailingWrites;
};

Record &record()
{
    static auto *instance = new Record;
    return *instance;
}

void note(const char *call, const QString &path)
{
    const QMutexLocker locker(&record().mutex);
    if (record().isListening) {
        record().calls.append(QLatin1String(call) + QLatin1Char(' ') + path);
    }
}

QString pathOf(int descriptor)
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(descriptor));
}

bool isFailing(const QString &path)
{
    const QMutexLocker locker(&record().mutex);
    return record().isListening && record().failingPath == path && record().awaitedRename.isEmpty();
}

bool linksFail()
{
    const QMutexLocker locker(&record().mutex);
    return record().isListening && record().linksFail;
}

bool writesFailTo(const QString &path)
{
    const QMutexLocker locker(&record().mutex);
    return record().isListening && !record().folderOfFailingWrites.isEmpty() &&
           path.startsWith(record().folderOfFailingWrites);
}

void noteSyncOf(const QString &path)
{
    const QMutexLocker locker(&record().mutex);
    if (!record().awaitedSync.isEmpty() && path.endsWith(record().awaitedSync)) {
        record().folderOfFailingWrites = path.left(path.lastIndexOf(QLatin1Char('/')) + 1);
    }
}

void noteRenameTo(const QString &path)
{
    const QMutexLocker locker(&record().mutex);
    if (record().awaitedRename == path) {
        record().awaitedRename.clear();
    }
}

template<typename Function>
Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

int syncThrough(const char *name, int descriptor)
{
    const QString path = pathOf(descriptor);
    if (isFailing(path)) {
        errno = EIO;
        return -1;
    }
    const int result = next<int(int)>(name)(descriptor);
    note("sync", path);
    noteSyncOf(path);
    return result;
}
} // namespace

extern "C" {
int fsync(int descriptor)
{
    return syncThrough("fsync", descriptor);
}

int fdatasync(int descriptor)
{
    return syncThrough("fdatasync", descriptor);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    if (writesFailTo(pathOf(descriptor))) {
        errno = EIO;
        return -1;
    }
    return next<ssize_t(int, const void *, size_t)>("write")(descriptor, bytes, size);
}

int unlink(const char *path) noexcept
{
    note("remove", QFile::decodeName(path));
    return next<int(const char *)>("unlink")(path);
}

int rename(const char *from, const char *to) noexcept
{
    note("rename", QFile::decodeName(from));
    noteRenameTo(QFile::decodeName(to));
    return next<int(const char *, const char *)>("rename")(from, to);
}

int link(const char *from, const char *to) noexcept
{
    note("link", QFile::decodeName(to));
    if (linksFail()) {
        errno = EPERM;
        return -1;
    }
    return next<int(const char *, const char *)>("link")(from, to);
}
}

DiskLog::DiskLog()
{
    const QMutexLocker locker(&record().mutex);
    record().isListening = true;
    record().calls.clear();
    record().failingPath.clear();
    record().awaitedRename.clear();
    record().linksFail = false;
    record().awaitedSync.clear();
    record().folderOfFailingWrites.clear();
}

DiskLog::~DiskLog()
{
    const QMutexLocker locker(&record().mutex);
    record().isListening = false;
}

QStringList DiskLog::calls() const
{
    const QMutexLocker locker(&record().mutex);
    return record().calls;
}

bool DiskLog::hasInOrder(const QStringList &wanted) const
{
    const QStringList all = calls();
    qsizetype at = -1;
    for (const QString &call : wanted) {
        at = all.indexOf(call, at + 1);
        if (at < 0) {
            return false;
        }
    }
    return true;
}

void DiskLog::failSyncOf(const QString &path, const QString &afterRenameTo)
{
    const QMutexLocker locker(&record().mutex);
    record().failingPath = path;
    record().awaitedRename = afterRenameTo;
}

void DiskLog::failLinks()
{
    const QMutexLocker locker(&record().mutex);
    record().linksFail = true;
}

void DiskLog::failWritesAfterSyncOf(const QString &endOfPath)
{
    const QMutexLocker locker(&record().mutex);
    record().awaitedSync = endOfPath;
}
