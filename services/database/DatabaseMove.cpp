// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/database/DatabaseMove.h"

#include "core/DatabaseManager.h"
#include "core/Durable.h"
#include "core/Logging.h"
#include "core/platform/FileSystem.h"
#include "services/AppService.h"
#include "services/database/DatabaseCompanions.h"
#include "services/FolderTidying.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

DatabaseMove::DatabaseMove(AppService *app, DatabaseManager *databases)
    : m_app(app)
    , m_databases(databases)
{}

bool DatabaseMove::below(const QString &destinationFolder)
{
    const QString source = m_app->databasePath();
    if (source.isEmpty()) {
        qCWarning(lcDatabase) << "No database configured.";
        return false;
    }
    if (!QFile::exists(source)) {
        qCWarning(lcDatabase) << "Database file does not exist.";
        return false;
    }
    const QString folder =
        QDir(destinationFolder).absoluteFilePath(QStringLiteral("ZelvanPOS/data"));
    if (!Durable::makeFolder(folder)) {
        qCWarning(lcDatabase) << "Failed to create destination directory.";
        return false;
    }
    const QString target = folder + QLatin1Char('/') + QFileInfo(source).fileName();
    if (!isFreeTarget(source, target)) {
        return false;
    }
    if (!m_databases->checkpointWal()) {
        qCWarning(lcDatabase) << "Failed to checkpoint database.";
        return false;
    }
    if (!releaseSource(source) || !switchTo(target, source)) {
        m_databases->initialize(source);
        return false;
    }
    removeSource(source);
    qCInfo(lcDatabase) << "Database moved successfully.";
    return true;
}

bool DatabaseMove::isFreeTarget(const QString &source, const QString &target)
{
    if (target == source) {
        qCWarning(lcDatabase) << "Source and destination are identical.";
        return false;
    }
    if (QFile::exists(target)) {
        qCWarning(lcDatabase) << "Destination database already exists.";
        return false;
    }
    return true;
}

bool DatabaseMove::releaseSource(const QString &source)
{
    m_databases->closeDatabase();
    // The last connection to close takes the log away. One that stays belongs to another program,
    // whose changes would be left behind.
    if (QFileInfo(writeAheadLog(source)).size() > 0) {
        qCWarning(lcDatabase) << "Database is in use by another program.";
        return false;
    }
    return true;
}

bool DatabaseMove::switchTo(const QString &target, const QString &source)
{
    // The log of a database that is gone: SQLite would play it into the copy.
    removeCompanions(target);
    if (!Durable::copy(source, target)) {
        qCWarning(lcDatabase) << "Failed to copy database.";
        return false;
    }
    if (!takesOver(target) || !configure(target)) {
        // Closed first: an open file cannot be removed everywhere.
        m_databases->closeDatabase();
        FileSystem::remove(target);
        return false;
    }
    return true;
}

bool DatabaseMove::takesOver(const QString &target)
{
    if (!m_databases->testConnection(target)) {
        qCWarning(lcDatabase) << "Copied database could not be opened.";
        return false;
    }
    if (!m_databases->initialize(target)) {
        qCWarning(lcDatabase) << "Failed to initialize moved database.";
        return false;
    }
    return true;
}

bool DatabaseMove::configure(const QString &target)
{
    // The next start will look where the store says, so without its word the old file has to stay.
    if (!m_app->storeDatabasePath(target)) {
        qCWarning(lcDatabase) << "Failed to save the new database path.";
        return false;
    }
    return true;
}

void DatabaseMove::removeSource(const QString &source)
{
    // The move has happened: nothing from here on undoes it or fails it.
    if (!FileSystem::remove(source)) {
        qCWarning(lcDatabase) << "Failed to delete old database.";
    }
    removeCompanions(source);
    QDir emptied = QFileInfo(source).absoluteDir();
    emptied.cdUp();
    // With a disk's root would go every empty folder of the disk.
    if (holdsNoFile(emptied) &&
        (FileSystem::isVolumeRoot(emptied.path()) || !emptied.removeRecursively())) {
        qCWarning(lcDatabase) << "Failed to remove empty directory.";
    }
}
