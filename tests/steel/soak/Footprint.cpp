// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/soak/Footprint.h"

#include <QDir>
#include <QFile>

#include <algorithm>

#include <malloc.h>
#include <unistd.h>

namespace {
constexpr qint64 kilobyte = 1024;

/// For temporary tables, for their journal, and for the journal of one statement.
constexpr qint64 temporaryFiles = 3;

/// Files, pipes and the like. SQLite's few temporary files are left out: each comes when what it is
/// for outgrows its memory, and stays.
qint64 openHandles()
{
    const QDir folder(QStringLiteral("/proc/self/fd"));
    qint64 handles = 0;
    qint64 temporary = 0;
    for (const QString &name :
         folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        const QString target = QFile::symLinkTarget(folder.filePath(name));
        ++(target.contains(QLatin1String("/etilqs_")) ? temporary : handles);
    }
    return handles + std::max<qint64>(0, temporary - temporaryFiles);
}
} // namespace

Footprint Footprint::now()
{
    malloc_trim(0);
    Footprint found;
    QFile sizes(QStringLiteral("/proc/self/statm"));
    if (sizes.open(QIODevice::ReadOnly)) {
        found.residentKilobytes =
            sizes.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / kilobyte;
    }
    const struct mallinfo2 heap = mallinfo2();
    found.heapKilobytes = qint64(heap.uordblks + heap.hblkhd) / kilobyte;
    found.handles = openHandles();
    return found;
}

QByteArray Footprint::toText() const
{
    return "resident " + QByteArray::number(residentKilobytes) + " heap " +
           QByteArray::number(heapKilobytes) + " handles " + QByteArray::number(handles);
}
