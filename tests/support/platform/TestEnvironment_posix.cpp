// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestEnvironment.h"

#include <ctime>

void TestEnvironment::enter() {}

void TestEnvironment::setTimeZone(const QByteArray &zone)
{
    if (zone.isEmpty()) {
        qunsetenv("TZ");
    } else {
        qputenv("TZ", zone);
    }
    tzset();
}

int TestEnvironment::codePage()
{
    // As the constructor says.
    return 65001;
}

void TestEnvironment::makeSettings() {}

void TestEnvironment::removeSettings() {}
