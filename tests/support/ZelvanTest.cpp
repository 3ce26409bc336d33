// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/ZelvanTest.h"

void ZelvanTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void ZelvanTest::expectLog(QtMsgType type, const QString &startOfText)
{
    const QString pattern = QStringLiteral("^%1").arg(QRegularExpression::escape(startOfText));
    QTest::ignoreMessage(
        type, QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption));
}
