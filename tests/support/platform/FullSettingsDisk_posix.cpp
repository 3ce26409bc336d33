// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FullSettingsDisk.h"

#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSettings>
#include <QVariant>

namespace {
constexpr int bytes = 1 << 20;

/// A first section that just fits, with all other keys behind it: their last lines, the database's
/// path among them, are cut off at the end of the write, where QSettings does not notice.
void pad()
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
} // namespace

struct FullSettingsDisk::Obstacle
{
    FileSizeLimit limit{bytes};
};

FullSettingsDisk::FullSettingsDisk(const QString &startOfText)
{
    pad();
    if (startOfText.isEmpty()) {
        begin();
    } else {
        m_hook.emplace(startOfText, [this] { begin(); });
    }
}

FullSettingsDisk::~FullSettingsDisk() = default;

void FullSettingsDisk::begin()
{
    if (m_obstacle == nullptr) {
        m_obstacle = std::make_unique<Obstacle>();
    }
}

QByteArray FullSettingsDisk::stored()
{
    QFile file(QSettings().fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList FullSettingsDisk::leftovers()
{
    const QFileInfo store(QSettings().fileName());
    QStringList names = store.dir().entryList(QDir::Files | QDir::Hidden);
    names.removeAll(store.fileName());
    return names;
}
