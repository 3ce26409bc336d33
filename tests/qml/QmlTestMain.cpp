// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "core/Repositories.h"
#include "core/Services.h"
#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "qml/QmlTestStore.h"
#include "services/AppService.h"
#include "support/RecordingSpooler.h"
#include "support/TestDatabase.h"
#include "support/TestEnvironment.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QtQuickTest>

/// Gives the test's engine the module of the screens.
class EngineSetup final : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral(":/qt/qml"));
    }
};

/// "qml_tests -input tst_x.qml": one document of tests a process, on a real database file, the real
/// services and a spooler that keeps its paper in memory.
///
/// A test document's root is a ZelvanTestCase (see there). It makes screens with show("common/X"),
/// arranges rows through the services and the singleton TestDb of `ZelvanTest 1.0`, clicks, and
/// watches stored rows with TestDb.value(sql). Every warning of a test that was not announced with
/// ignoreWarning() fails it.
int main(int argc, char **argv)
{
    const TestEnvironment environment;
    QGuiApplication application(argc, argv);
    TestEnvironment::nameApplication();
    QQuickStyle::setStyle(QStringLiteral("Fusion"));

    TestDatabase file;
    AppService app;
    app.setDatabasePath(file.path());
    DatabaseManager database;
    SystemTheme systemTheme(qEnvironmentVariableIsSet("ZELVAN_TEST_DARK"));
    Theme theme(&systemTheme);
    RecordingSpooler spooler;
    Repositories repositories;
    Services services(app, database, repositories, &spooler);
    services.connectSignals();
    services.publish(systemTheme, theme);

    QmlTestStore store(file, services, spooler);
    qmlRegisterSingletonInstance("ZelvanTest", 1, 0, "TestDb", &store);

    EngineSetup setup;
    return quick_test_main_with_setup(argc, argv, "zelvan", nullptr, &setup);
}

#include "QmlTestMain.moc"
