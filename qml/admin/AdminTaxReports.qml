// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import "../components/Days.js" as Days

// Sales and tax of a period: the sums, day by day, and every paid session. All amounts that the
// service gives are cents.
Item {
    id: root

    property var summary: ({})
    property var dailyBreakdown: []
    property var sessions: []
    property date fromDate: new Date()
    property date toDate: new Date()
    property string currencySymbol: ""

    function loadReport() {
        summary = TaxReportService.getSummary(fromDate, toDate)
        dailyBreakdown = TaxReportService.getDailyBreakdown(fromDate, toDate)
        sessions = TaxReportService.getSessions(fromDate, toDate)
    }

    // "today", "yesterday", "week" from its Monday, "month", "lastMonth".
    function loadPreset(preset: string) {
        const period = periodOf(preset, new Date())
        fromDate = period.from
        toDate = period.to
        fromField.showDay()
        toField.showDay()
        loadReport()
    }

    // Local days, both included.
    function periodOf(preset: string, now: var): var {
        const year = now.getFullYear()
        const month = now.getMonth()
        const today = Days.after(now, 0)
        let from = today
        let to = today
        switch (preset) {
        case "yesterday":
            from = Days.after(today, -1)
            to = from
            break
        case "week":
            from = Days.after(today, today.getDay() === 0 ? -6 : 1 - today.getDay())
            break
        case "month":
            from = Days.of(year, month, 1)
            break
        case "lastMonth":
            from = Days.of(year, month - 1, 1)
            to = Days.of(year, month, 0)
            break
        }
        return { from: from, to: to }
    }

    // A wrong or reversed range is passed over without a word.
    function loadCustomRange() {
        const from = Days.parse(fromField.text)
        const to = Days.parse(toField.text)
        if (from === null || to === null || from > to)
            return
        fromDate = from
        toDate = to
        loadReport()
    }

    function money(cents: real): string {
        return currencySymbol + ((cents || 0) / 100).toFixed(2)
    }

    // ISO text turned round; anything else as it is.
    function formatDate(text: string): string {
        const parts = text.split("-")
        return parts.length === 3 ? parts[2] + "/" + parts[1] + "/" + parts[0] : text
    }

    implicitWidth: 1000
    implicitHeight: 700

    component Card: FigureCard {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.preferredHeight: 120
    }

    component PresetButton: FilledButton {
        required property string preset

        fillColor: Theme.surface
        textColor: Theme.text
        borderColor: Theme.border
        onClicked: root.loadPreset(preset)
    }

    component DateField: ThemedField {
        required property date day

        // Also over what was typed in vain, of which the date knows nothing.
        function showDay() {
            text = Qt.formatDate(day, "yyyy-MM-dd")
        }

        Layout.preferredWidth: 130
        placeholderText: "yyyy-MM-dd"
        onDayChanged: showDay()
        onEditingFinished: root.loadCustomRange()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 20
        spacing: 16

        RowLayout {
            Layout.fillWidth: true
            spacing: 8

            ColumnLayout {
                spacing: 2

                PlainLabel {
                    text: qsTr("Tax Report")
                    font.bold: true
                    font.pixelSize: Theme.fontXL
                }

                PlainLabel {
                    text: root.summary.from && root.summary.to ? root.formatDate(root.summary.from) + " - " + root.formatDate(root.summary.to) : qsTr("Select a date range")
                    color: Theme.secondaryText
                }
            }

            Item {
                Layout.fillWidth: true
            }

            PresetButton {
                preset: "today"
                text: qsTr("Today")
            }

            PresetButton {
                preset: "yesterday"
                text: qsTr("Yesterday")
            }

            PresetButton {
                preset: "week"
                text: qsTr("This Week")
            }

            PresetButton {
                preset: "month"
                text: qsTr("This Month")
            }

            PresetButton {
                preset: "lastMonth"
                text: qsTr("Last Month")
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 64
            radius: 6
            color: Theme.surface
            border.width: 1
            border.color: Theme.border

            RowLayout {
                anchors.left: parent.left
                anchors.leftMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                spacing: 8

                PlainLabel {
                    text: qsTr("From")
                }

                DateField {
                    id: fromField

                    day: root.fromDate
                    label: qsTr("From")
                }

                PlainLabel {
                    text: qsTr("To")
                }

                DateField {
                    id: toField

                    day: root.toDate
                    label: qsTr("To")
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 16

            Card {
                caption: qsTr("Sales Before Tax")
                figure: root.money(root.summary.subtotal)
            }

            Card {
                caption: root.summary.taxName || qsTr("Tax Collected")
                figure: root.money(root.summary.taxCollected)
                note: (root.summary.taxRate || 0) / 100 + "%"
            }

            Card {
                caption: qsTr("Discount")
                figure: root.money(root.summary.discount)
            }

            // The count and its word stand together without a blank, which is meant.
            Card {
                caption: qsTr("Total Sales")
                figure: root.money(root.summary.totalSales)
                note: (root.summary.transactionCount || 0) + qsTr("transactions")
            }
        }

        ReportTable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: 1
            title: qsTr("Daily Breakdown")
            emptyText: qsTr("No data for this period")
            rows: root.dailyBreakdown
            columns: [
                { title: qsTr("Date"), width: 140, text: row => root.formatDate(row.date) },
                { title: qsTr("Transactions"), width: 110, text: row => row.transactionCount },
                { title: qsTr("Subtotal"), width: 130, text: row => root.money(row.subtotal) },
                { title: qsTr("Tax"), width: 130, text: row => root.money(row.taxCollected) },
                { title: qsTr("Total"), width: 0, text: row => root.money(row.totalSales) }
            ]
        }

        ReportTable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: 1
            title: qsTr("Transactions")
            emptyText: qsTr("No transactions for this period")
            rows: root.sessions
            // The closing time is shown as it is stored, in UTC.
            columns: [
                { title: qsTr("Receipt"), width: 100, least: 80, text: row => row.receiptNumber || "-" },
                { title: qsTr("Type"), width: 110, least: 76, text: row => row.orderType || "-" },
                { title: qsTr("Table"), width: 0, text: row => row.tableName || "-" },
                { title: qsTr("Subtotal"), width: 120, least: 96, text: row => root.money(row.subtotal) },
                { title: qsTr("Tax"), width: 100, least: 84, text: row => root.money(row.tax) },
                { title: qsTr("Total"), width: 120, least: 96, text: row => root.money(row.total) },
                { title: qsTr("Closed At"), width: 160, least: 146, text: row => row.closedAt }
            ]
        }
    }

    Component.onCompleted: {
        currencySymbol = SettingService.currencySymbol()
        loadPreset("today")
    }
}
