// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Durable.h"

#include "core/platform/FileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
QString folderOf(const QString &path)
{
    return QFileInfo(path).absolutePath();
}

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool writeAll(QFile &target, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = target.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

bool copyContent(const QString &sourcePath, const QString &targetPath, QString &reason)
{
    constexpr qint64 chunkBytes = 1 << 20;
    QFile source(sourcePath);
    QFile target(targetPath);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        reason = source.errorString();
        return false;
    }
    if (!target.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        reason = target.errorString();
        return false;
    }
    qint64 copied = 0;
    for (QByteArray chunk = source.read(chunkBytes); !chunk.isEmpty();
         chunk = source.read(chunkBytes)) {
        if (!writeAll(target, chunk)) {
            reason = target.errorString();
            return false;
        }
        copied += chunk.size();
    }
    if (source.error() != QFileDevice::NoError || copied != source.size()) {
        reason = source.errorString();
        return false;
    }
    return true;
}
} // namespace

bool Durable::makeFolder(const QString &path)
{
    const QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (QFileInfo(folder).isDir()) {
        return true;
    }
    const QString above = folderOf(folder);
    return above != folder && makeFolder(above) && FileSystem::createPrivateFolder(folder) &&
           FileSystem::syncFolder(above);
}

bool Durable::sync(const QString &path)
{
    return FileSystem::syncFile(path) && FileSystem::syncFolder(folderOf(path));
}

bool Durable::copy(const QString &source, const QString &target, QString *reason)
{
    // What an earlier try left behind that never got to its end.
    const QString partial = target + QStringLiteral(".part");
    QFile::remove(partial);

    QString why = QStringLiteral("cannot be created");
    const bool copied = FileSystem::createPrivateFile(partial) &&
                        copyContent(source, partial, why) && FileSystem::syncFile(partial) &&
                        rename(partial, target);
    if (!copied) {
        QFile::remove(partial);
        if (reason != nullptr) {
            *reason = why;
        }
    }
    return copied;
}

bool Durable::rename(const QString &path, const QString &newPath)
{
    if (isTaken(newPath) || !FileSystem::replaceBy(newPath, path)) {
        return false;
    }
    if (!FileSystem::syncFolder(folderOf(newPath))) {
        static_cast<void>(FileSystem::replaceBy(path, newPath));
        return false;
    }
    return true;
}
