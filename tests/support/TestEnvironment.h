// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

/// Keeps a test process away from the user's own settings, logs and databases: every standard
/// folder lies in a temporary one. Made before the application object.
class TestEnvironment final
{
public:
    TestEnvironment();
    ~TestEnvironment();
    Q_DISABLE_COPY_MOVE(TestEnvironment)

    /// Organisation and application as the program sets them.
    static void nameApplication();
    /// In a process that a test started: what its variables say, where a system wants more than
    /// that.
    static void enter();
    /// The clock's zone as the C library writes it, such as "CET-1CEST,M3.5.0,M10.5.0/3"; the
    /// system's own where it is empty.
    static void setTimeZone(const QByteArray &zone);
    /// The number that Windows gives to the local encoding; 65001 is UTF-8.
    [[nodiscard]] static int codePage();

private:
    /// A settings store of the system's own that is no file.
    static void makeSettings();
    static void removeSettings();

    QTemporaryDir m_home;
};
