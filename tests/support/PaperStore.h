// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Printer.h"
#include "repositories/RegionalSettingsRepository.h"
#include "support/TestDatabase.h"

/// What a builder of printed documents asks of a store: the language of its amounts and dates.
struct PaperStore
{
    void useLocale(const QString &name) { settings.save({1, name, QStringLiteral("USD")}); }

    [[nodiscard]] static Printer printer(int paperWidth = 58,
                                         const QString &cutMode = QStringLiteral("none"))
    {
        Printer made;
        made.paper_width = paperWidth;
        made.cut_mode = cutMode;
        return made;
    }

    TestDatabase database;
    RegionalSettingsRepository settings{database.handle()};
};
