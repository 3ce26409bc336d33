// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/PasswordHasher.h"

#include "core/Logging.h"

#include <QRegularExpression>

#include <sodium.h>

#include <array>
#include <cstring>

namespace {
// libsodium's interactive limits, fixed here so that a new libsodium does not change them unseen.
constexpr unsigned long long operationsLimit = 2;
constexpr size_t memoryLimit = 67108864;

/// How much dearer than one of our own a stored hash may be: room for a later program's limits,
/// and still an answer within the second or two that people wait.
constexpr qulonglong margin = 4;
constexpr size_t bytesPerKibibyte = 1024;

/// Whether a check would take memory or time that this program never asks for. The hash text says
/// how much, and whoever writes to the database could freeze every log-in with it. A text that is
/// no hash costs nothing: libsodium refuses it.
bool asksForTooMuch(const QString &hash)
{
    static const QRegularExpression parameters(
        QStringLiteral(R"(^\$argon2[a-z]*\$v=\d+\$m=(\d+),t=(\d+),)"));
    const QRegularExpressionMatch match = parameters.match(hash);
    if (!match.hasMatch()) {
        return false;
    }
    bool memoryIsNumber = false;
    bool operationsIsNumber = false;
    const qulonglong kibibytes = match.captured(1).toULongLong(&memoryIsNumber);
    const qulonglong operations = match.captured(2).toULongLong(&operationsIsNumber);
    return !memoryIsNumber || !operationsIsNumber ||
           kibibytes > margin * memoryLimit / bytesPerKibibyte ||
           operations > margin * operationsLimit;
}
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
    if (asksForTooMuch(hash)) {
        qCWarning(lcAuth) << "Password hash refused: it asks for too much memory or time.";
        return false;
    }
    const QByteArray utf8 = password.toUtf8();
    return crypto_pwhash_str_verify(hash.toUtf8().constData(), utf8.constData(),
                                    static_cast<unsigned long long>(utf8.size())) == 0;
}
