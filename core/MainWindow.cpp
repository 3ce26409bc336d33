// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/MainWindow.h"

#include <QQmlApplicationEngine>
#include <QUrl>

bool loadMainWindow(QQmlApplicationEngine &engine)
{
    // The default from Qt 6.5 on.
    engine.addImportPath(QStringLiteral(":/qt/qml"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    engine.loadFromModule("zelvan", "Main");
#else
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/zelvan/qml/Main.qml")));
#endif
    return !engine.rootObjects().isEmpty();
}
