// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/FolderTidying.h"

#include <QFileInfo>

#include <filesystem>

namespace {
/// What leads elsewhere counts as a file, or the removal would go on there. The standard library
/// does not tell a junction from a folder.
bool isLink(const std::filesystem::path &path)
{
    const QFileInfo info(path);
    return info.isSymLink() || info.isJunction();
}

bool holdsOnlyFolders(const std::filesystem::path &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entries(folder, error);
    const std::filesystem::directory_iterator end;
    while (!error && entries != end) {
        const std::filesystem::file_status status = entries->symlink_status(error);
        if (error || !std::filesystem::is_directory(status) || isLink(entries->path()) ||
            !holdsOnlyFolders(entries->path())) {
            return false;
        }
        entries.increment(error);
    }
    return !error;
}
} // namespace

bool holdsNoFile(const QDir &folder)
{
    return holdsOnlyFolders(folder.filesystemAbsolutePath());
}
