// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

/// A real database file in a temporary folder, migrated and open as `main_connection` for as long
/// as the object lives. Repositories are to be destroyed before it.
class TestDatabase final
{
public:
    enum class Content
    {
        /// Tables only.
        Schema,
        /// Tables, identity, and seeded settings, as after the first run; no regional row.
        Seeded,
    };

    explicit TestDatabase(Content content = Content::Seeded);
    ~TestDatabase();
    Q_DISABLE_COPY_MOVE(TestDatabase)

    [[nodiscard]] QString path() const;
    [[nodiscard]] QSqlDatabase handle() const;

    /// Runs one statement through the same connection; fails the test loudly when SQLite refuses
    /// it.
    void run(const QString &sql) const;
    /// The first column of the first row, invalid when there is none.
    [[nodiscard]] QVariant value(const QString &sql) const;
    /// No data and seeded settings again, ids starting afresh.
    void reset() const;
    /// The last row id given by an insert.
    [[nodiscard]] int insert(const QString &sql) const;

private:
    void seed() const;

    QTemporaryDir m_folder;
};
