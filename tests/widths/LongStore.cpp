// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "widths/LongStore.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <algorithm>

using namespace Qt::StringLiterals;

LongStore::LongStore(const QString &language)
    : m_chinese(language == "zh_CN"_L1)
{
    m_store.services.settings.saveRegionalSettings(
        {{u"id"_s, 1}, {u"locale"_s, language}, {u"currency_code"_s, u"MYR"_s}});
    m_store.services.settings.saveTaxSettings(
        {{u"enabled"_s, true},
         {u"name"_s, name(u"Sales and Service Tax"_s, u"商品销售与服务综合税"_s)},
         {u"rate"_s, 1050},
         {u"registration_number"_s, u"REG-7"_s}});
    m_store.setMembershipEnabled(true);
    m_store.setKitchen(u"hybrid"_s, u"manual"_s);
    addMenu();
    addTables();
    addFloors();
    addPeople();
    addPrinters();
    addOrders();
}

QString LongStore::name(const QString &english, const QString &chinese)
{
    m_names.append(m_chinese ? chinese : english);
    return m_names.constLast();
}

void LongStore::addMenu()
{
    const QString category = name(u"Charcoal Roasts and Grills"_s, u"炭火烧烤与铁板烧什锦拼盘类"_s);
    m_store.services.menu.renameCategory(1, category);
    for (int i = 2; i <= 24; ++i) {
        m_store.services.menu.addCategory(category + u" %1"_s.arg(i));
    }
    const QString dish =
        name(u"Kung Pao Chicken with Roasted Peanuts"_s, u"宫保鸡丁配烤花生和四川干辣椒特别版"_s);
    const QString portion = name(u"Large family plate"_s, u"全家福特大份装拼盘十二人份"_s);
    for (int i = 1; i <= 40; ++i) {
        m_dishes.append(m_store.addDish({.name = dish + u" %1"_s.arg(i),
                                         .cents = 128850,
                                         .available = i != 3,
                                         .portion = portion}));
    }
    m_store.services.menu.categoryModel()->reload();
}

void LongStore::addTables()
{
    const QString table = name(u"Window table by the garden"_s, u"花园旁边靠窗的安静双人雅座"_s);
    for (int i = 1; i <= 40; ++i) {
        m_tables.append(m_store.addTable(table + u" %1"_s.arg(i)));
    }
    m_store.services.tables.tableModel()->reload();
}

/// The first table of the plan is free, the second one booked.
void LongStore::addFloors()
{
    const QString floorName =
        name(u"Garden terrace on the roof"_s, u"屋顶花园露台与观景平台一号"_s);
    FloorPlanService &plan = m_store.services.floorPlan;
    int first = -1;
    for (int i = 1; i <= 6; ++i) {
        const int id = plan.createFloor(floorName + u" %1"_s.arg(i));
        first = first < 0 ? id : first;
    }
    plan.loadCanvas(first);
    for (int i = 0; i < 2; ++i) {
        plan.createTableItem({{u"type"_s, u"table"_s},
                              {u"x"_s, 60.0 + 160.0 * i},
                              {u"y"_s, 80.0},
                              {u"width"_s, 80.0},
                              {u"height"_s, 80.0},
                              {u"label"_s, name(u"Corner table %1"_s, u"角落里的桌子%1"_s).arg(i)},
                              {u"floor_id"_s, first},
                              {u"capacity"_s, 4},
                              {u"metadata"_s, u"{\"table_type\":\"square\"}"_s}});
    }
    plan.saveCanvas(first);
    const int booked = int(m_store.number(u"SELECT MAX(table_id) FROM canvas_items"_s));
    m_store.addReservation(booked, QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s),
                           120);
    const QString customer =
        name(u"Alexandra Papadopoulos-Fernandez"_s, u"欧阳娜娜与上官婉儿家族聚会团"_s);
    const QString notes = name(u"A quiet place for the grandmother and a high chair"_s,
                               u"请安排安静的座位给老人并准备儿童高脚椅"_s);
    m_store.database.run(
        u"UPDATE reservations SET customer_name = '%1', customer_phone = '+49 151 12345678', "
        u"notes = '%2'"_s.arg(customer, notes));
}

void LongStore::addPeople()
{
    const QString user = name(u"Christopher Montgomery"_s, u"诸葛孔明与司马懿大总管经理"_s);
    for (int i = 1; i <= 30; ++i) {
        m_store.database.run(
            u"INSERT INTO users (username, password, role) VALUES ('%1 %2', 'x', '%3')"_s.arg(
                user, QString::number(i), i == 1 ? u"admin"_s : u"service_staff"_s));
    }
    m_store.services.users.userModel()->reload();
    for (int i = 10; i < 50; ++i) {
        m_store.addMember(u"+49 151 123456%1"_s.arg(i), 123456);
    }
}

void LongStore::addPrinters()
{
    const QString printer =
        name(u"EPSON_TM-T88VI_Receipt_Front_Counter"_s, u"EPSON_TM-T88VI_Receipt_Front_Counter"_s);
    for (int i = 1; i <= 8; ++i) {
        m_store.spooler.addPrinter(printer + u"_%1"_s.arg(i), u"socket://127.0.0.1:9100"_s);
        m_store.addPrinter(printer + u"_%1"_s.arg(i), u"receipt"_s);
    }
}

/// Orders in every state of the board, and paid ones, the first of each with twelve lines.
void LongStore::addOrders()
{
    const QString remark = name(u"No peanuts please, extra chili on the side"_s,
                                u"不要花生，辣椒另外放旁边，少盐少油"_s);
    for (int i = 0; i < 24; ++i) {
        QVariantList lines;
        for (int j = 0; j < (i == 0 || i == 1 ? 12 : 2); ++j) {
            const int dish = j < 2 ? j : j + 1;
            lines.append(TestStore::line(m_dishes.at(dish), 12, j % 2 == 0 ? remark : QString()));
        }
        const int order = m_store.orderAtTable(m_tables.at(i), lines);
        KitchenOrderService &kitchen = m_store.services.kitchenOrders;
        if (i % 3 > 0) {
            kitchen.markState(order, i % 3 == 1 ? u"in_progress"_s : u"ready"_s);
        }
        if (i % 2 == 1) {
            m_store.services.checkout.completeCheckout(m_store.sessionOf(order), {}, 0);
        }
        m_store.database.run(
            u"INSERT INTO membership_transactions (membership_id, order_session_id, type, points) "
            u"VALUES (1, %1, 'earn', 1200)"_s.arg(m_store.sessionOf(order)));
    }
}

void LongStore::publish(SystemTheme &systemTheme, Theme &theme)
{
    m_store.services.publish(systemTheme, theme);
}
