// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QJsonObject>
#include <QString>

/// Prints a program's figures as JSON and writes them to the file too, unless its path is empty.
/// False when the file could not be written.
[[nodiscard]] bool tellFigures(const QJsonObject &figures, const QString &path);
