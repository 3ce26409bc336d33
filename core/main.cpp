// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "core/FontsAhead.h"
#include "core/Logging.h"
#include "core/MainWindow.h"
#include "core/platform/Fonts.h"
#include "core/Repositories.h"
#include "core/Services.h"
#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "core/Translation.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QTranslator>

/// Builds everything in a fixed order, wires it, publishes it to QML and runs. The order is part of
/// the design: a repository copies the database handle at the moment it is built.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zelvan"));
    QCoreApplication::setApplicationName(QStringLiteral("ZelvanPOS"));
    initLogging();
    const FontsAhead fontsAhead;
    QQuickStyle::setStyle(QStringLiteral("Fusion"));
    chooseFonts();

    // Before any connection exists, so that the file may be overwritten. The start goes on on
    // whatever stands there afterwards, hence the ignored result.
    DatabaseService::applyPendingRestore();
    AppService app;
    DatabaseManager database;
    if (app.determineState() > AppService::NotZelvanDBNeedsSetup) {
        if (!DatabaseManager::initialize(app.databasePath())) {
            // A run of migrations that could not be committed would swallow all this run writes.
            DatabaseManager::abandonTransaction();
        }
    }

    SystemTheme systemTheme;
    Theme theme(&systemTheme);
    QObject::connect(&systemTheme, &SystemTheme::darkModeChanged, &theme,
                     &Theme::onSystemThemeChanged);

    QTranslator translator;
    installTranslation(translator,
                       chosenLanguage(RegionalSettingsRepository(DatabaseManager::connection())));

    Repositories repositories;
    Services services(app, database, repositories);
    services.connectSignals();
    services.publish(systemTheme, theme);

    QQmlApplicationEngine engine;
    if (!loadMainWindow(engine)) {
        return -1;
    }
    return QGuiApplication::exec();
}
