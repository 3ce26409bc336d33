// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The cashier's page: open sessions, the bill of the selected one, and the last paid ones.
Item {
    id: root

    property string memberPhone: ""
    property int memberId: 0
    property int currentPoints: 0
    property bool membershipChecked: false
    readonly property Item startItem: openList
    property bool membershipEnabled: SettingService.membershipEnabled
    property int earnedPointsPreview: 0
    property int redeemPointsRequested: 0
    // Currency units, as all figures of this page.
    property real redeemDiscountPreview: 0
    property real finalTotalPreview: 0
    property var activeSessions: []
    property var recentOrders: []
    property var selectedSession: null
    property var selectedRecent: null
    property var selectedRecentDetails: null
    property var checkoutDetails: []
    property bool canCheckout: false
    property bool requireReadyForCheckout: false
    property string kitchenMode: ""
    property string currencySymbol: ""

    // What margins and gaps leave. On a small screen first the paid orders give way, then the open
    // ones; the bill keeps room for its columns and for the names of the dishes.
    readonly property real room: width - 32
    readonly property real billWidth: 410
    readonly property real recentWidth: Math.max(200, Math.min(300, room - 360 - billWidth))
    readonly property real openWidth: Math.max(220, Math.min(360, room - recentWidth - billWidth))

    function reloadData() {
        activeSessions = CheckoutService.loadActiveCheckoutSessions()
        recentOrders = CheckoutService.getRecentPaidOrders()
        clearSelectedSession()
        selectedRecent = null
        selectedRecentDetails = null
        checkoutDetails = []
        forgetMember()
    }

    // Only a selection that stands is cleared: writing null over null would count as a change too.
    function clearSelectedSession() {
        if (selectedSession !== null)
            selectedSession = null
    }

    function forgetMember() {
        memberPhone = ""
        memberId = 0
        currentPoints = 0
        earnedPointsPreview = 0
    }

    // The last bill's member is forgotten before the change of selection previews the new bill:
    // those points would lower its total.
    function selectSession(session: var) {
        selectedRecent = null
        selectedRecentDetails = null
        forgetMember()
        redeemPointsRequested = 0
        redeemDiscountPreview = 0
        selectedSession = session
        checkoutDetails = CheckoutService.loadCheckoutDetails(session.id)
        updateMembershipPreview()
    }

    function selectRecent(order: var) {
        clearSelectedSession()
        selectedRecent = order
        selectedRecentDetails = CheckoutService.loadPaidOrderDetails(order.id)
    }

    function changePhone(text: string) {
        memberPhone = text.trim()
        membershipChecked = false
        memberId = 0
        currentPoints = 0
        earnedPointsPreview = 0
    }

    function redeem(points: int) {
        redeemPointsRequested = points
        updateMembershipPreview()
    }

    // The products lose their fraction of a cent on the way into the service: a preview may differ
    // by a cent from the payment, and one that redeems the whole bill shows the full total. Both
    // are meant.
    function updateMembershipPreview() {
        membershipChecked = false
        if (!memberPhone || !selectedSession)
            return
        const preview = MembershipService.preview(memberPhone, selectedSession.subtotal * 100, selectedSession.total * 100, redeemPointsRequested)
        membershipChecked = true
        memberId = preview.memberId || 0
        currentPoints = preview.currentPoints || 0
        earnedPointsPreview = preview.earnedPoints || 0
        redeemDiscountPreview = (preview.redeemDiscountCents || 0) / 100.0
        finalTotalPreview = (preview.finalTotalCents || selectedSession.total * 100) / 100.0
    }

    // The one place that holds back a bill whose orders are not all served.
    function recomputeCanCheckout() {
        if (kitchenMode === "tickets" || !requireReadyForCheckout)
            canCheckout = true
        else
            canCheckout = checkoutDetails.length > 0 && checkoutDetails.every(order => String(order.status).trim().toLowerCase() === "served")
    }

    // A refused payment leaves the page as it is; a receipt that does not print is not told.
    function checkout() {
        if (!selectedSession)
            return
        const sessionId = selectedSession.id
        if (CheckoutService.completeCheckout(sessionId, memberPhone, redeemPointsRequested)) {
            CheckoutService.printReceipt(sessionId, false)
            reloadData()
        }
    }

    function reprint() {
        CheckoutService.printReceipt(selectedRecentDetails.id, true)
    }

    function money(amount: real): string {
        return currencySymbol + amount.toFixed(2)
    }

    implicitWidth: 1200
    implicitHeight: 700

    // Meant as it is: a selection cleared to null ends this handler at its first line, with a
    // script error in the log.
    onSelectedSessionChanged: {
        finalTotalPreview = selectedSession.total
        updateMembershipPreview()
    }
    onCheckoutDetailsChanged: recomputeCanCheckout()

    RowLayout {
        anchors.fill: parent
        anchors.margins: 8
        anchors.rightMargin: 12
        spacing: 6

        KeyList {
            id: openList

            Layout.preferredWidth: root.openWidth + barRoom
            Layout.fillHeight: true
            spacing: 10
            z: 1
            model: root.activeSessions

            Accessible.role: Accessible.List
            Accessible.name: qsTr("Checkout")

            delegate: SessionRow {
                required property var modelData

                width: openList.rowWidth
                title: "#" + modelData.display_number
                subtitle: modelData.table_name ? qsTr("Table ") + modelData.table_name : modelData.order_type
                selected: !!root.selectedSession && root.selectedSession.id === modelData.id
                onClicked: root.selectSession(modelData)
            }

            EmptyHint {
                parent: openList
                visible: openList.count === 0
                text: qsTranslate("Hints", "No open bills. An order that is placed opens one.")
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: 6
            color: Theme.background

            OpenSessionPane {
                anchors.fill: parent
                anchors.margins: 16
                visible: root.selectedSession !== null
                page: root
            }

            RecentOrderPane {
                anchors.fill: parent
                anchors.margins: 16
                visible: root.selectedRecentDetails !== null
                page: root
            }
        }

        ColumnLayout {
            Layout.fillWidth: false
            Layout.preferredWidth: root.recentWidth
            Layout.fillHeight: true
            spacing: 10

            PlainLabel {
                text: qsTr("Recent Paid Orders")
                font.bold: true
            }

            KeyList {
                id: recentList

                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: 10
                model: root.recentOrders

                Accessible.role: Accessible.List
                Accessible.name: qsTr("Recent Paid Orders")

                delegate: SessionRow {
                    required property var modelData

                    width: recentList.rowWidth
                    title: "#" + modelData.display_number
                    subtitle: root.money(modelData.total)
                    subtitleColor: Theme.green
                    selectedBorder: "#66ddaa"
                    selected: !!root.selectedRecent && root.selectedRecent.id === modelData.id
                    onClicked: root.selectRecent(modelData)
                }

                EmptyHint {
                    parent: recentList
                    visible: recentList.count === 0
                    text: qsTranslate("Hints", "Nothing paid yet. An order appears here once it is paid.")
                }
            }
        }
    }

    Component.onCompleted: {
        currencySymbol = SettingService.currencySymbol()
        const settings = SettingService.getKitchenSettings()
        requireReadyForCheckout = settings.require_ready_for_checkout ?? false
        kitchenMode = settings.mode ?? ""
        reloadData()
    }
}
