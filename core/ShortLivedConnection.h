// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QSqlDatabase>
#include <QString>

/// A connection under a name of its own, gone again at the end of the scope. Not yet open, and
/// without any pragma.
class ShortLivedConnection final
{
public:
    ShortLivedConnection(const QString &name, const QString &path)
        : m_name(name)
    {
        if (QSqlDatabase::contains(name)) {
            QSqlDatabase::removeDatabase(name);
        }
        m_handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        m_handle.setDatabaseName(path);
    }
    ~ShortLivedConnection()
    {
        m_handle.close();
        m_handle = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY_MOVE(ShortLivedConnection)

    QSqlDatabase &handle() { return m_handle; }

private:
    QString m_name;
    QSqlDatabase m_handle;
};
