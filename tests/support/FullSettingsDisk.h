// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "support/LogHook.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

/// From a log line on, or at once where none is named, there is room for a store's database and not
/// for the settings. Ends with the object.
class FullSettingsDisk final
{
public:
    explicit FullSettingsDisk(const QString &startOfText = {});
    ~FullSettingsDisk();
    Q_DISABLE_COPY_MOVE(FullSettingsDisk)

    /// What a new process would find, as lines of "key=value" that may be of other sections too.
    [[nodiscard]] static QByteArray stored();
    /// What lies beside the store, where it is a file.
    [[nodiscard]] static QStringList leftovers();

private:
    struct Obstacle;

    void begin();

    std::unique_ptr<Obstacle> m_obstacle;
    std::optional<LogHook> m_hook;
};
