// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Logging.h"
#include "core/MainWindow.h"
#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "steel/soak/Footprint.h"
#include "steel/soak/PageTurner.h"
#include "steel/worker/Acknowledgement.h"
#include "steel/worker/Till.h"
#include "steel/worker/Trade.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

namespace {
constexpr int parts = 10;
/// Bills that were left open are paid now and then, as they would be.
constexpr int roundsBetweenSettlements = 50;
constexpr unsigned seed = 41;
constexpr int ordersADay = 500;

/// Under libfaketime, which reads it at every look at the clock: the store has days behind it, as
/// it would, and not one of fifty thousand orders.
void turnToDay(int day)
{
    qputenv("FAKETIME", '+' + QByteArray::number(day) + 'd');
}
} // namespace

/// "steel_soak ORDERS PAGES": weeks in one process, on the store of the settings. Tells its size
/// after each tenth of them, always on the same page.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zelvan"));
    QCoreApplication::setApplicationName(QStringLiteral("ZelvanPOS"));
    initLogging();
    QQuickStyle::setStyle(QStringLiteral("Fusion"));

    Till till;
    SystemTheme systemTheme;
    Theme theme(&systemTheme);
    till.services.publish(systemTheme, theme);
    QQmlApplicationEngine engine;
    if (till.state != AppService::Ready || !loadMainWindow(engine)) {
        return 1;
    }

    const QStringList arguments = QCoreApplication::arguments();
    const int orders = arguments.value(1).toInt() / parts;
    const int pages = arguments.value(2).toInt() / parts;
    PageTurner turner(engine);
    Trade trade(till, seed, 1);
    int ordered = 0;
    for (int part = 1; part <= parts; ++part) {
        int turned = 0;
        for (int round = 1; round <= orders; ++round) {
            trade.round();
            if (++ordered % ordersADay == 0) {
                turnToDay(ordered / ordersADay);
            }
            if (round % roundsBetweenSettlements == 0) {
                trade.settle();
            }
            while (turned * orders < round * pages) {
                turner.next();
                ++turned;
            }
        }
        turner.toLogin();
        acknowledge("part " + QByteArray::number(part) + " printed " +
                    QByteArray::number(qulonglong(till.spooler.documents())) + ' ' +
                    Footprint::now().toText());
    }
    acknowledge("answer soak true");
    return 0;
}
