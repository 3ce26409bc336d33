// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/soak/Footprint.h"

#include <QDir>
#include <QFile>

#include <malloc.h>
#include <unistd.h>

namespace {
constexpr qint64 kilobyte = 1024;
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
    found.handles = QDir(QStringLiteral("/proc/self/fd"))
                        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                        .size();
    return found;
}

QByteArray Footprint::toText() const
{
    return "resident " + QByteArray::number(residentKilobytes) + " heap " +
           QByteArray::number(heapKilobytes) + " handles " + QByteArray::number(handles);
}
