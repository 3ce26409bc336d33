// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Translation.h"
#include "fuzz/FuzzStore.h"
#include "fuzz/FuzzTarget.h"
#include "repositories/RegionalSettingsRepository.h"

#include <QTranslator>

/// The store's locale and currency, one a line: they choose the catalogue, the symbol, and how
/// amounts and dates stand on a receipt.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzStore &store = FuzzStore::instance();
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype end = input.indexOf('\n');
    store.write(QStringLiteral("UPDATE regional_settings SET locale = CAST(? AS TEXT)"),
                input.left(end));
    store.write(QStringLiteral("UPDATE regional_settings SET currency_code = CAST(? AS TEXT)"),
                end < 0 ? QByteArray("") : input.mid(end + 1));

    QTranslator translator;
    installTranslation(translator,
                       chosenLanguage(RegionalSettingsRepository(DatabaseManager::connection())));
    SettingService &settings = store.services.settings;
    // Read and written back, as the settings page does.
    settings.saveRegionalSettings(settings.getRegionalSettings());
    if (settings.currencySymbol().isEmpty()) {
        qFatal("no symbol for the currency");
    }
    for (const bool isReprint : {false, true}) {
        if (!store.services.checkout.printReceipt(FuzzStore::paidSession, isReprint)) {
            qFatal("the receipt was not printed");
        }
    }
    return 0;
}
