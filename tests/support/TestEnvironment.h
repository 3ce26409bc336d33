// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QTemporaryDir>

/// Keeps a test process away from the user's own settings, logs and databases: every standard
/// folder lies in a temporary one. Made before the application object.
class TestEnvironment final
{
public:
    TestEnvironment();

    /// Organisation and application as the program sets them.
    static void nameApplication();

private:
    QTemporaryDir m_home;
};
