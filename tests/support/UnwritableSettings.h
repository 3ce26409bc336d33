// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "support/LogHook.h"

#include <QDir>
#include <QFile>
#include <QSettings>

/// From a log line on, a folder stands in the place of the settings' file: nothing set after that
/// is stored. Ends with the object.
class UnwritableSettings final
{
public:
    explicit UnwritableSettings(const QString &startOfText)
        : m_path(QSettings().fileName())
        , m_hook(startOfText, [this] {
            QFile::remove(m_path);
            QDir().mkpath(m_path + "/in the way");
        })
    {}
    ~UnwritableSettings() { QDir(m_path).removeRecursively(); }
    Q_DISABLE_COPY_MOVE(UnwritableSettings)

private:
    QString m_path;
    LogHook m_hook;
};
