// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/worker/StoreContent.h"

#include "core/PasswordHasher.h"
#include "steel/worker/Till.h"

namespace {
bool createPeople(Repositories &repositories)
{
    User admin;
    admin.username = QStringLiteral("mai");
    admin.password = hashPassword(QStringLiteral("correct horse"));
    admin.role = QStringLiteral("admin");
    if (!repositories.users.createUser(admin)) {
        return false;
    }
    for (int number = 1; number <= StoreContent::members; ++number) {
        Membership member;
        member.phone_number = StoreContent::phone(number);
        member.status = QStringLiteral("active");
        if (!repositories.memberships.create(member)) {
            return false;
        }
    }
    return true;
}

bool createSettings(SettingService &settings)
{
    QVariantMap membership = settings.getMembershipSettings();
    membership[QStringLiteral("enabled")] = true;
    membership[QStringLiteral("earn_points")] = 10;
    membership[QStringLiteral("earn_spend")] = 1.0;
    return settings.saveMembershipSettings(membership) &&
           settings.saveRestaurantSetting(
               {{QStringLiteral("name"), QStringLiteral("Lotus")},
                {QStringLiteral("address"), QStringLiteral("1 Main")}}) &&
           settings.saveTaxSettings({{QStringLiteral("id"), 1},
                                     {QStringLiteral("enabled"), true},
                                     {QStringLiteral("rate"), 600},
                                     {QStringLiteral("name"), QStringLiteral("VAT")},
                                     {QStringLiteral("registration_number"), QString()}}) &&
           settings.savePrinter({{QStringLiteral("system_name"), QStringLiteral("TM88")},
                                 {QStringLiteral("role"), QStringLiteral("receipt")},
                                 {QStringLiteral("paper_width"), 80},
                                 {QStringLiteral("cut_mode"), QStringLiteral("full")}});
}

bool createMenu(Till &till)
{
    MenuService &menu = till.services.menu;
    if (!menu.addCategory(QStringLiteral("Mains"))) {
        return false;
    }
    const int category = till.repositories.categories.getAllCategories().value(0).id;
    for (int dish = 1; dish <= StoreContent::dishes; ++dish) {
        // Every third one is free of tax, and no price is a round one.
        if (!menu.addMenuItem(QStringLiteral("Dish %1").arg(dish), category, 1.35 * dish, true,
                              dish % 3 != 0)) {
            return false;
        }
    }
    return true;
}
} // namespace

QString StoreContent::phone(int member)
{
    return QStringLiteral("55501%1").arg(member, 2, 10, QLatin1Char('0'));
}

bool StoreContent::create(Till &till)
{
    for (int table = 1; table <= tables; ++table) {
        if (till.services.tables.addTable(QStringLiteral("T%1").arg(table), 4) < 1) {
            return false;
        }
    }
    return createPeople(till.repositories) && createSettings(till.services.settings) &&
           createMenu(till);
}
