// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>

/// Tells the one who watches, on the standard output, what this process has told its user. Not
/// buffered: what was said before a kill or a power cut has been heard.
void acknowledge(const QByteArray &line);
