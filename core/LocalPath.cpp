// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/LocalPath.h"

#include <QUrl>

namespace {
bool startsWithDrive(QStringView path)
{
    return path.size() >= 2 && path[0].isLetter() && path[1] == QLatin1Char(':');
}
} // namespace

QString localPath(const QString &urlOrPath, PathStyle style)
{
    const QString scheme = QStringLiteral("file:");
    if (!urlOrPath.startsWith(scheme, Qt::CaseInsensitive)) {
        return urlOrPath;
    }
    QString rest = urlOrPath.mid(scheme.size());
    QString host;
    if (rest.startsWith(QLatin1String("//"))) {
        rest = rest.mid(2);
        const qsizetype slash = rest.indexOf(QLatin1Char('/'));
        // "file://C:/x" is written by hand now and then: the drive is no host.
        if (!startsWithDrive(rest)) {
            host = slash < 0 ? rest : rest.left(slash);
            rest = slash < 0 ? QString() : rest.mid(slash);
        }
    }
    QString path = QUrl::fromPercentEncoding(rest.toUtf8());
    if (style == PathStyle::Windows) {
        if (path.startsWith(QLatin1Char('/')) && startsWithDrive(QStringView(path).mid(1))) {
            path = path.mid(1);
        } else if (!host.isEmpty() && host != QLatin1String("localhost")) {
            path = QStringLiteral("//") + host + path;
        }
    }
    return path;
}
