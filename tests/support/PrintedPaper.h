// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstddef>

/// Helpers to hold a printed document against one written by hand.
namespace PrintedPaper {

/// A text of the sources as the computer's own encoding has it, in which all paper is.
inline QByteArray local(const QByteArray &text)
{
    return QString::fromUtf8(text).toLocal8Bit();
}

/// A text with escapes as bytes on paper, zeros inside included.
template<std::size_t Size>
QByteArray bytes(const char (&text)[Size])
{
    return local(QByteArray(text, static_cast<qsizetype>(Size) - 1));
}

/// The expected document with "{date}" and "{time}" filled in, and what `build` printed in that
/// very second.
struct Comparison
{
    QByteArray expected;
    QByteArray printed;
};

/// Prints anew when the second has changed under the printing, so that the time is never off by
/// one.
template<typename Build>
Comparison inOneSecond(const QByteArray &expected, const QString &dateFormat, Build build)
{
    for (;;) {
        const QDateTime before = QDateTime::currentDateTime();
        const QByteArray printed = build();
        const QDateTime after = QDateTime::currentDateTime();
        const QString time = before.toString(QStringLiteral("HH:mm:ss"));
        if (time == after.toString(QStringLiteral("HH:mm:ss"))) {
            QByteArray filled = expected;
            filled.replace("{date}", before.toString(dateFormat).toUtf8());
            filled.replace("{time}", time.toUtf8());
            return {filled, printed};
        }
    }
}

} // namespace PrintedPaper
