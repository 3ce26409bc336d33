// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/SettingsStore.h"

#include "core/Durable.h"
#include "core/platform/FileSystem.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QVariant>

#include <optional>

#include <unistd.h>

namespace {
QString storePath()
{
    const QFileInfo file(QSettings().fileName());
    return file.isSymLink() ? file.canonicalFilePath() : file.absoluteFilePath();
}

QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QLatin1Char('\n'))
                                                    : value.toString();
}

/// All of it, by key; absent where it cannot be read.
std::optional<SettingsStore::Changes> contentOf(const QString &path)
{
    const QSettings settings(path, QSettings::NativeFormat);
    SettingsStore::Changes content;
    for (const QString &key : settings.allKeys()) {
        content.insert(key, textOf(settings.value(key)));
    }
    return settings.status() == QSettings::NoError ? std::optional(content) : std::nullopt;
}

/// What the store has to hold in the end: what nobody changes too, since a disk that fails can take
/// everything from under QSettings without its noticing.
std::optional<SettingsStore::Changes> changed(std::optional<SettingsStore::Changes> content,
                                              const SettingsStore::Changes &changes)
{
    for (auto change = changes.cbegin(); content && change != changes.cend(); ++change) {
        if (change.value().isNull()) {
            content->remove(change.key());
        } else {
            content->insert(change.key(), change.value());
        }
    }
    return content;
}

bool write(const QString &draft, const SettingsStore::Changes &changes)
{
    QSettings settings(draft, QSettings::NativeFormat);
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value().isNull()) {
            settings.remove(change.key());
        } else {
            settings.setValue(change.key(), change.value());
        }
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}

/// QSettings keeps what it wrote and looks at a file once more only where its size or time changed:
/// a new time makes it read this draft, and later the store, anew.
bool makeNewerThan(const QString &draft, const QString &store)
{
    QFile file(draft);
    const QDateTime latest =
        qMax(file.fileTime(QFileDevice::FileModificationTime), QFileInfo(store).lastModified());
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(latest.addMSecs(1), QFileDevice::FileModificationTime);
}

/// The store as it shall be, checked and on the disk.
bool prepare(const QString &draft, const QString &store, const SettingsStore::Changes &changes)
{
    // Read first: what cannot be read here is not copied either.
    const std::optional<SettingsStore::Changes> wanted = changed(contentOf(store), changes);
    const bool isBegun =
        QFile::exists(store) ? Durable::copy(store, draft) : FileSystem::createPrivateFile(draft);
    return wanted && isBegun && write(draft, changes) && makeNewerThan(draft, store) &&
           contentOf(draft) == wanted && FileSystem::syncFile(draft);
}

/// A second name for the same content: going back to it takes no room, and no reading.
bool keepAs(const QString &kept, const QString &store)
{
    QFile::remove(kept);
    return link(QFile::encodeName(store).constData(), QFile::encodeName(kept).constData()) == 0 ||
           Durable::copy(store, kept);
}

/// From here on the store has the new content, unless that does not get to the disk.
bool putInPlace(const QString &draft, const QString &store)
{
    const QString kept = store + QStringLiteral(".old");
    const bool isFirst = !QFile::exists(store);
    if ((!isFirst && !keepAs(kept, store)) || !FileSystem::replaceBy(store, draft)) {
        QFile::remove(kept);
        return false;
    }
    if (!FileSystem::syncFolder(QFileInfo(store).absolutePath())) {
        static_cast<void>(isFirst ? QFile::remove(store) : FileSystem::replaceBy(store, kept));
        return false;
    }
    QFile::remove(kept);
    return true;
}
} // namespace

bool SettingsStore::store(const Changes &changes)
{
    // Never the same name twice: QSettings remembers what it failed to write under one.
    static int count = 0;
    const QString store = storePath();
    const QString draft = QStringLiteral("%1.new%2").arg(store).arg(++count);
    // The store's own file is left alone until another one holds all of it.
    QFile::remove(draft);
    // An empty one, left by a power cut, would be waited for.
    QFile::remove(draft + QStringLiteral(".lock"));
    const bool isStored = Durable::makeFolder(QFileInfo(store).absolutePath()) &&
                          prepare(draft, store, changes) && putInPlace(draft, store);
    if (!isStored) {
        QFile::remove(draft);
    }
    return isStored;
}
