// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "support/ZelvanTest.h"

#include <QTemporaryDir>

#include <memory>

/// Base of the tests that work on database files: each begins with an empty folder and empty
/// settings, and ends with the main connection closed.
class DatabaseFileTest : public ZelvanTest
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    [[nodiscard]] QString folder() const { return m_folder->path(); }
    [[nodiscard]] QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    /// The column "name" with names of folders, plain and awkward ones.
    static void addFolderNames();

    /// Puts what is no store's database into the folder: "folder", "foreign.db", "text.db",
    /// and "damaged.db", a store with a page of its orders zeroed.
    void makeUnfitFiles() const;
    /// Announces the warnings of a refused file: its connection's, unless empty, then the
    /// service's.
    static void expectRefusal(const QString &connectionLine, const QString &ownLine);

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
