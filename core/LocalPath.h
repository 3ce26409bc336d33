// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// How paths are written on a kind of system; the native one by default, both in the tests.
enum class PathStyle
{
    Unix,
    Windows,
};

#ifdef Q_OS_WIN
inline constexpr PathStyle nativePathStyle = PathStyle::Windows;
#else
inline constexpr PathStyle nativePathStyle = PathStyle::Unix;
#endif

/// A local path from what a file dialog or a standard location gives: a "file:" URL is turned into
/// a path with percent signs decoded; any other text is kept. Empty stays empty.
[[nodiscard]] QString localPath(const QString &urlOrPath, PathStyle style = nativePathStyle);
