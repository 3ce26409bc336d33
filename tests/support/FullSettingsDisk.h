// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "support/FileSizeLimit.h"
#include "support/LogHook.h"

#include <QFile>
#include <QMap>
#include <QSettings>
#include <QVariant>

#include <optional>

/// From a log line on, or at once where none is named, there is room for a store's database and not
/// for the settings: their last lines, the database's path among them, are cut off at the end of
/// the write, where QSettings does not notice. Ends with the object.
class FullSettingsDisk final
{
public:
    explicit FullSettingsDisk(const QString &startOfText = {})
    {
        pad();
        if (startOfText.isEmpty()) {
            m_limit.emplace(bytes);
        } else {
            m_hook.emplace(startOfText, [this] { m_limit.emplace(bytes); });
        }
    }

    /// What a new process would find, as it stands in the file.
    [[nodiscard]] static QByteArray stored()
    {
        QFile file(QSettings().fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    static constexpr int bytes = 1 << 20;

    /// A first section that just fits, with all other keys behind it.
    static void pad()
    {
        constexpr int restOfFirstSection = 40;
        QSettings settings;
        QMap<QString, QVariant> others;
        for (const QString &key : settings.allKeys()) {
            others.insert(key, settings.value(key));
        }
        settings.clear();
        settings.setValue("a/filler", QString(bytes - restOfFirstSection, 'x'));
        settings.sync();
        for (auto other = others.cbegin(); other != others.cend(); ++other) {
            settings.setValue(other.key(), other.value());
        }
    }

    std::optional<FileSizeLimit> m_limit;
    std::optional<LogHook> m_hook;
};
