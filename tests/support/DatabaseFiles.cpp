// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/DatabaseFiles.h"

#include "core/DatabaseManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {
const QString probeName = QStringLiteral("test_probe");

QVariant valueOnProbe(const QString &path, const QString &sql)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), probeName);
    database.setDatabaseName(path);
    if (!database.open()) {
        qFatal("cannot open %s", qPrintable(path));
    }
    QSqlQuery query(database);
    if (!query.exec(sql)) {
        qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
    }
    return query.next() ? query.value(0) : QVariant();
}
} // namespace

QVariant DatabaseFiles::value(const QString &path, const QString &sql)
{
    const QVariant found = valueOnProbe(path, sql);
    QSqlDatabase::removeDatabase(probeName);
    return found;
}

void DatabaseFiles::run(const QString &path, const QString &sql)
{
    static_cast<void>(value(path, sql));
}

void DatabaseFiles::makeStore(const QString &path, const QString &storeName)
{
    if (!DatabaseManager::initialize(path)) {
        qFatal("cannot make %s", qPrintable(path));
    }
    DatabaseManager::closeDatabase();
    run(path, QStringLiteral("INSERT INTO app_state (key, value) "
                             "VALUES ('app.id', 'com.zelvan.pos')"));
    run(path, QStringLiteral("INSERT INTO restaurant (id, name, address) VALUES (1, '%1', '')")
                  .arg(storeName));
}

void DatabaseFiles::makeLogOnly(const QString &path)
{
    const QString log = path + QStringLiteral("-wal");
    const QString kept = path + QStringLiteral("-kept");
    makeStore(path, QStringLiteral("vanished"));
    const bool made = DatabaseManager::openExisting(path) &&
                      QSqlQuery(DatabaseManager::connection())
                          .exec(QStringLiteral("UPDATE restaurant SET name = 'vanished later'")) &&
                      QFile::copy(log, kept);
    DatabaseManager::closeDatabase();
    if (!made || !QFile::remove(path) || !QFile::rename(kept, log)) {
        qFatal("cannot make %s", qPrintable(log));
    }
}

void DatabaseFiles::makeForeign(const QString &path)
{
    run(path, QStringLiteral("CREATE TABLE recipes (name TEXT)"));
}

void DatabaseFiles::makeText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("this is no database\n") < 0) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

void DatabaseFiles::makeDamaged(const QString &path)
{
    makeStore(path, QStringLiteral("damaged"));
    damage(path, QStringLiteral("orders"),
           QByteArray(value(path, QStringLiteral("PRAGMA page_size")).toInt(), '\0'));
}

void DatabaseFiles::damage(const QString &path, const QString &table, const QByteArray &bytes)
{
    const qint64 pageSize = value(path, QStringLiteral("PRAGMA page_size")).toLongLong();
    const qint64 page =
        value(path,
              QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(table))
            .toLongLong();
    QFile file(path);
    if (page < 2 || !file.open(QIODevice::ReadWrite) || !file.seek((page - 1) * pageSize) ||
        file.write(bytes) != bytes.size()) {
        qFatal("cannot damage %s", qPrintable(path));
    }
}

QString DatabaseFiles::storeName(const QString &path)
{
    return value(path, QStringLiteral("SELECT name FROM restaurant")).toString();
}

QString DatabaseFiles::makeUnopenableFolder(const QString &path)
{
    // Of all systems: 512 bytes here, 1040 there.
    constexpr int longestPathOfSqlite = 1040;
    QString folder = path;
    while (folder.size() <= longestPathOfSqlite) {
        folder += QLatin1Char('/') + QString(100, QLatin1Char('d'));
    }
    if (!QDir().mkpath(folder)) {
        qFatal("cannot make %s", qPrintable(folder));
    }
    return folder;
}
