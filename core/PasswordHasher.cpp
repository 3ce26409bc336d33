// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/PasswordHasher.h"

#include <sodium.h>

#include <array>
#include <cstring>

namespace {
// libsodium's interactive limits, fixed here so that a new libsodium does not change them unseen.
constexpr unsigned long long operationsLimit = 2;
constexpr size_t memoryLimit = 67108864;
} // namespace

QString hashPassword(const QString &password)
{
    if (sodium_init() < 0) {
        return {};
    }
    const QByteArray utf8 = password.toUtf8();
    std::array<char, crypto_pwhash_STRBYTES> buffer{};
    static_assert(buffer.size() == 128);
    // The result is deliberately not examined: a failed hash leaves an empty text, which never
    // verifies.
    [[maybe_unused]] const int ignored = crypto_pwhash_str(
        buffer.data(), utf8.constData(), static_cast<unsigned long long>(utf8.size()),
        operationsLimit, memoryLimit);
    return QString::fromUtf8(buffer.data(),
                             static_cast<qsizetype>(strnlen(buffer.data(), buffer.size())));
}

bool verifyPassword(const QString &password, const QString &hash)
{
    if (sodium_init() < 0) {
        return false;
    }
    const QByteArray utf8 = password.toUtf8();
    return crypto_pwhash_str_verify(hash.toUtf8().constData(), utf8.constData(),
                                    static_cast<unsigned long long>(utf8.size())) == 0;
}
