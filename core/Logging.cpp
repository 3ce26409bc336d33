// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Logging.h"

#include "core/Durable.h"
#include "core/platform/FileSystem.h"

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QStandardPaths>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>

#define ZELVAN_LOGGING_CATEGORY(function, text)                                                    \
    const QLoggingCategory &function()                                                             \
    {                                                                                              \
        static const QLoggingCategory category(text, QtDebugMsg);                                  \
        return category;                                                                           \
    }

ZELVAN_LOGGING_CATEGORY(lcApplication, "application")
ZELVAN_LOGGING_CATEGORY(lcDatabase, "database")
ZELVAN_LOGGING_CATEGORY(lcMigration, "migration")
ZELVAN_LOGGING_CATEGORY(lcSeeder, "seeder")
ZELVAN_LOGGING_CATEGORY(lcCheckout, "checkout")
ZELVAN_LOGGING_CATEGORY(lcMembership, "membership")
ZELVAN_LOGGING_CATEGORY(lcPrinter, "printer")
ZELVAN_LOGGING_CATEGORY(lcFloorPlan, "floor_plan")
ZELVAN_LOGGING_CATEGORY(lcAuth, "auth")
ZELVAN_LOGGING_CATEGORY(lcOrder, "order")
ZELVAN_LOGGING_CATEGORY(lcMenu, "menu")
ZELVAN_LOGGING_CATEGORY(lcReservation, "reservation")
ZELVAN_LOGGING_CATEGORY(lcSettings, "settings")
ZELVAN_LOGGING_CATEGORY(lcSetup, "setup")

namespace {
constexpr int retentionDays = 30;
const QString dateFormat = QStringLiteral("yyyy-MM-dd");

/// Guarded by its mutex, which is held for the whole of a message.
struct LogState
{
    QMutex mutex;
    QFile file;
    QTextStream stream;
    QString currentDate;
};

LogState &state()
{
    // Never destroyed: messages may still come while other statics go.
    static auto *instance = new LogState;
    return *instance;
}

QString logFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/logs");
}

QString todayText()
{
    return QDate::currentDate().toString(dateFormat);
}

QString levelText(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("DEBUG");
    case QtInfoMsg:
        return QStringLiteral("INFO");
    case QtWarningMsg:
        return QStringLiteral("WARN");
    case QtCriticalMsg:
        return QStringLiteral("ERROR");
    case QtFatalMsg:
        return QStringLiteral("FATAL");
    }
    return {};
}
} // namespace

void openLogFile()
{
    LogState &log = state();
    const QString folder = logFolder();
    static_cast<void>(Durable::makeFolder(folder));
    log.currentDate = todayText();
    const QString path = QStringLiteral("%1/%2.log").arg(folder, log.currentDate);
    if (log.file.isOpen()) {
        log.file.close();
    }
    if (!QFile::exists(path)) {
        FileSystem::createPrivateFile(path);
    }
    log.file.setFileName(path);
    if (log.file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        log.stream.setDevice(&log.file);
    }
}

void purgeOldLogs()
{
    const QDir folder(logFolder());
    if (!folder.exists()) {
        return;
    }
    const QDate limit = QDate::currentDate().addDays(-retentionDays);
    const QFileInfoList files =
        folder.entryInfoList({QStringLiteral("*.log")}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        const QDate date = QDate::fromString(file.completeBaseName(), dateFormat);
        if (date.isValid() && date < limit) {
            QFile::remove(file.absoluteFilePath());
        }
    }
}

void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    LogState &log = state();
    const QMutexLocker locker(&log.mutex);
    if (todayText() != log.currentDate) {
        openLogFile();
    }
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    // All four at once: a message that holds "%1" stays as it is.
    const QString line =
        QStringLiteral("%1 [%2] [%3] %4")
            .arg(time, levelText(type), QString::fromUtf8(context.category), message);
    // A day whose file could not be opened goes on without one, and without a word about it.
    if (log.file.isOpen()) {
        log.stream << line << Qt::endl;
    }
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
    std::fflush(stderr);
    if (type == QtFatalMsg) {
        std::abort();
    }
}

void initLogging()
{
    openLogFile();
    qInstallMessageHandler(logMessageHandler);
    purgeOldLogs();
    qInfo("Logging initialized.");
}
