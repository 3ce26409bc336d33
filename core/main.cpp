// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Logging.h"

#include <QGuiApplication>

int main(int argc, char *argv[])
{
    const QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zelvan"));
    QCoreApplication::setApplicationName(QStringLiteral("ZelvanPOS"));
    initLogging();
    return 0;
}
