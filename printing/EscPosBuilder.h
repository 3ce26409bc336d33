// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QString>

/// The ESC/POS commands all printed documents share, appended to one growing byte buffer.
class EscPosBuilder final
{
public:
    void initialize();
    void setBold(bool on);
    void alignLeft();
    void alignCenter();
    void alignRight();
    void newline();

    /// The text in the machine's local 8-bit encoding, with no terminator: the printer is expected
    /// to be set to the same code page.
    void text(const QString &text);

    /// Feeds three lines and cuts for "full" and "partial"; any other mode adds nothing.
    void cut(const QString &mode);

    [[nodiscard]] QByteArray data() const;

private:
    QByteArray m_data;
};
