// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "repositories/KitchenSettingsRepository.h"
#include "repositories/MembershipSettingsRepository.h"
#include "repositories/PrinterRepository.h"
#include "repositories/RegionalSettingsRepository.h"
#include "repositories/RestaurantRepository.h"
#include "repositories/TableSettingsRepository.h"
#include "repositories/TaxSettingsRepository.h"
#include "services/SettingService.h"

#include <QSqlDatabase>

/// The settings repositories on one handle and the service above them.
struct SettingsStore
{
    explicit SettingsStore(const QSqlDatabase &database)
        : restaurant(database)
        , printers(database)
        , tax(database)
        , membership(database)
        , kitchen(database)
        , regional(database)
        , tables(database)
        , service(&restaurant, &printers, &tax, &membership, &kitchen, &regional, &tables)
    {}

    RestaurantRepository restaurant;
    PrinterRepository printers;
    TaxSettingsRepository tax;
    MembershipSettingsRepository membership;
    KitchenSettingsRepository kitchen;
    RegionalSettingsRepository regional;
    TableSettingsRepository tables;
    SettingService service;
};
