// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The day's dashboard. The figures are read once, when the page opens.
Flickable {
    id: root

    // Currency units.
    property var snapshot: ({ revenueToday: 0, ordersToday: 0, averageOrder: 0, itemsSold: 0, topItems: [], revenueByHour: [], last7Days: [] })
    property string currencySymbol: ""

    function money(amount: real): string {
        return currencySymbol + amount.toFixed(2)
    }

    ScrollBar.vertical: RestingScrollBar {}
    contentWidth: width
    contentHeight: content.implicitHeight + 40
    clip: true

    FlickGuard {
        list: root
    }

    component Card: FigureCard {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.preferredHeight: 100
    }

    component Panel: FigurePanel {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.preferredHeight: 220
    }

    ColumnLayout {
        id: content

        x: 20
        y: 20
        width: root.width - 40
        spacing: 24

        RowLayout {
            Layout.fillWidth: true
            spacing: 16

            Card {
                caption: qsTr("Revenue Today")
                figure: root.money(root.snapshot.revenueToday)
                figureColor: Theme.primary()
            }

            Card {
                caption: qsTr("Orders")
                figure: root.snapshot.ordersToday
            }

            Card {
                caption: qsTr("Average Order")
                figure: root.money(root.snapshot.averageOrder)
            }

            Card {
                caption: qsTr("Items Sold")
                figure: root.snapshot.itemsSold
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 16

            Panel {
                title: qsTr("Top Items Today")
                boldFigures: true
                rows: root.snapshot.topItems.map((item, index) => ({ text: (index + 1) + ". " + item.name, figure: item.count }))
            }

            // The hour is a span already; that ":00" follows it is meant.
            Panel {
                title: qsTr("Revenue by Hour")
                rows: root.snapshot.revenueByHour.map(entry => ({ text: entry.hour + ":00", figure: root.money(entry.amount) }))
            }
        }

        Panel {
            Layout.preferredHeight: 320
            title: qsTr("Last 7 Days Revenue")
            rows: root.snapshot.last7Days.map(entry => ({ text: entry.day, figure: root.money(entry.amount) }))
        }
    }

    Component.onCompleted: {
        currencySymbol = SettingService.currencySymbol()
        snapshot = AnalyticsService.getSnapshot()
    }
}
