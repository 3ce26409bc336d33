// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

/// The least that a Qt Quick Controls program can be: one empty window in the program's style.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Fusion"));
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick.Controls\n"
                    "ApplicationWindow { visible: true; width: 850; height: 520 }\n");
    return engine.rootObjects().isEmpty() ? -1 : QGuiApplication::exec();
}
