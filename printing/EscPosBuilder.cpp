// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/EscPosBuilder.h"

void EscPosBuilder::initialize()
{
    m_data.append("\x1B\x40", 2);
}

void EscPosBuilder::setBold(bool on)
{
    m_data.append("\x1B\x45", 2);
    m_data.append(on ? '\x01' : '\x00');
}

void EscPosBuilder::alignLeft()
{
    m_data.append("\x1B\x61\x00", 3);
}

void EscPosBuilder::alignCenter()
{
    m_data.append("\x1B\x61\x01", 3);
}

void EscPosBuilder::alignRight()
{
    m_data.append("\x1B\x61\x02", 3);
}

void EscPosBuilder::newline()
{
    m_data.append('\x0A');
}

void EscPosBuilder::text(const QString &text)
{
    m_data.append(text.toLocal8Bit());
}

void EscPosBuilder::cut(const QString &mode)
{
    if (mode == QLatin1String("full")) {
        m_data.append("\x1B\x64\x03\x1D\x56\x00", 6);
    } else if (mode == QLatin1String("partial")) {
        m_data.append("\x1B\x64\x03\x1D\x56\x01", 6);
    }
}

QByteArray EscPosBuilder::data() const
{
    return m_data;
}
