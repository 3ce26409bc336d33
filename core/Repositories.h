// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/DatabaseManager.h"
#include "repositories/AnalyticsRepository.h"
#include "repositories/AppStateRepository.h"
#include "repositories/CanvasItemRepository.h"
#include "repositories/CategoryRepository.h"
#include "repositories/FloorRepository.h"
#include "repositories/KitchenSettingsRepository.h"
#include "repositories/MembershipRepository.h"
#include "repositories/MembershipSettingsRepository.h"
#include "repositories/MembershipTransactionRepository.h"
#include "repositories/MenuRepository.h"
#include "repositories/OrderItemRepository.h"
#include "repositories/OrderRepository.h"
#include "repositories/OrderSessionRepository.h"
#include "repositories/PrinterRepository.h"
#include "repositories/ReceiptSnapshotRepository.h"
#include "repositories/RegionalSettingsRepository.h"
#include "repositories/ReservationRepository.h"
#include "repositories/RestaurantRepository.h"
#include "repositories/TableRepository.h"
#include "repositories/TableSettingsRepository.h"
#include "repositories/TaxReportRepository.h"
#include "repositories/TaxSettingsRepository.h"
#include "repositories/UserRepository.h"

/// Every repository of the program, each built from its own fresh handle in the order of the
/// members. A handle is copied once, at construction: made before a database is open, they stay cut
/// off.
struct Repositories
{
    UserRepository users{DatabaseManager::connection()};
    MenuRepository menu{DatabaseManager::connection()};
    CategoryRepository categories{DatabaseManager::connection()};
    TableRepository tables{DatabaseManager::connection()};
    OrderRepository orders{DatabaseManager::connection()};
    OrderItemRepository orderItems{DatabaseManager::connection()};
    OrderSessionRepository orderSessions{DatabaseManager::connection()};
    RestaurantRepository restaurant{DatabaseManager::connection()};
    PrinterRepository printers{DatabaseManager::connection()};
    TaxSettingsRepository taxSettings{DatabaseManager::connection()};
    MembershipSettingsRepository membershipSettings{DatabaseManager::connection()};
    MembershipRepository memberships{DatabaseManager::connection()};
    MembershipTransactionRepository membershipTransactions{DatabaseManager::connection()};
    AnalyticsRepository analytics{DatabaseManager::connection()};
    KitchenSettingsRepository kitchenSettings{DatabaseManager::connection()};
    RegionalSettingsRepository regionalSettings{DatabaseManager::connection()};
    FloorRepository floors{DatabaseManager::connection()};
    CanvasItemRepository canvasItems{DatabaseManager::connection()};
    TableSettingsRepository tableSettings{DatabaseManager::connection()};
    ReservationRepository reservations{DatabaseManager::connection()};
    AppStateRepository appState{DatabaseManager::connection()};
    ReceiptSnapshotRepository receiptSnapshots{DatabaseManager::connection()};
    TaxReportRepository taxReports{DatabaseManager::connection()};
};
