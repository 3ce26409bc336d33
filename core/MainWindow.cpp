// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/MainWindow.h"

#include "core/Logging.h"

#include <QCoreApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QUrl>

namespace {
constexpr auto backendVariable = "QT_QUICK_BACKEND";

const char *nameOf(QSGRendererInterface::GraphicsApi api)
{
    switch (api) {
    case QSGRendererInterface::Software:
        return "software";
    case QSGRendererInterface::OpenGL:
        return "OpenGL";
    case QSGRendererInterface::Direct3D11:
        return "Direct3D 11";
    case QSGRendererInterface::Vulkan:
        return "Vulkan";
    case QSGRendererInterface::Metal:
        return "Metal";
    default:
        return "another interface";
    }
}

void tellWhatDraws(const QQuickWindow *window)
{
    qCInfo(lcApplication) << "Drawing with" << nameOf(window->rendererInterface()->graphicsApi());
}

/// A till without a graphics driver is a slow one and no dead one: another process of the program
/// paints without it.
void drawWithoutDriver(const QString &message)
{
    qCCritical(lcApplication) << "Failed to draw:" << message;
    if (qEnvironmentVariableIsEmpty(backendVariable)) {
        qputenv(backendVariable, "software");
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
    }
    QCoreApplication::exit(1);
}

void watchDrawing(QQuickWindow *window)
{
    QObject::connect(
        window, &QQuickWindow::sceneGraphError, window,
        [](QQuickWindow::SceneGraphError, const QString &message) { drawWithoutDriver(message); },
        Qt::QueuedConnection);
    if (window->isSceneGraphInitialized()) {
        tellWhatDraws(window);
    } else {
        QObject::connect(
            window, &QQuickWindow::sceneGraphInitialized, window,
            [window] { tellWhatDraws(window); }, Qt::QueuedConnection);
    }
}
} // namespace

bool loadMainWindow(QQmlApplicationEngine &engine)
{
    // The default from Qt 6.5 on.
    engine.addImportPath(QStringLiteral(":/qt/qml"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    engine.loadFromModule("zelvan", "Main");
#else
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/zelvan/qml/Main.qml")));
#endif
    if (engine.rootObjects().isEmpty()) {
        return false;
    }
    if (auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst())) {
        watchDrawing(window);
    }
    return true;
}
