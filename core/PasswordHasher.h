// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// The text to store for a password: Argon2id in libsodium's string form, with parameters and salt
/// in it. Empty where libsodium cannot start. Takes about 64 MiB and a noticeable moment;
/// thread-safe.
[[nodiscard]] QString hashPassword(const QString &password);

/// Whether the password is the one behind the hash text. A hash far dearer than our own is taken
/// for one of another password, with a line in the log.
[[nodiscard]] bool verifyPassword(const QString &password, const QString &hash);
