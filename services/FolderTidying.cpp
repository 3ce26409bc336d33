// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/FolderTidying.h"

#include <filesystem>

namespace {
bool holdsOnlyFolders(const std::filesystem::path &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entries(folder, error);
    const std::filesystem::directory_iterator end;
    while (!error && entries != end) {
        const std::filesystem::file_status status = entries->symlink_status(error);
        if (error || !std::filesystem::is_directory(status) || !holdsOnlyFolders(entries->path())) {
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
