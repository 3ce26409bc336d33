// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/Figures.h"

#include <QFile>
#include <QJsonDocument>

#include <cstdio>

bool tellFigures(const QJsonObject &figures, const QString &path)
{
    const QByteArray json = QJsonDocument(figures).toJson();
    std::fputs(json.constData(), stdout);
    if (path.isEmpty()) {
        return true;
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(json) == json.size();
}
