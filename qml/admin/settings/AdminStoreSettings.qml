// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// The restaurant's details, as receipts print them.
SettingsPage {
    id: root

    property string name
    property string address
    property string phoneNumber
    property string email
    property string website

    function load(): void {
        root.fill(SettingService.getRestaurant())
    }

    function fill(restaurant: var): void {
        root.name = restaurant.name || ""
        root.address = restaurant.address || ""
        root.phoneNumber = restaurant.phone_number || ""
        root.email = restaurant.email || ""
        root.website = restaurant.website || ""
    }

    function save(): void {
        // Nothing is checked, not even the name; an earlier error stays on the page. Both are meant.
        const saved = SettingService.saveRestaurantSetting({
            name: root.name,
            address: root.address,
            phone_number: root.phoneNumber,
            email: root.email,
            website: root.website
        })
        if (saved)
            root.load()
        else
            root.errorMessage = qsTr("Failed to save restaurant settings.")
    }

    heading: qsTr("Restaurant Settings")
    saveText: qsTr("Save")

    SettingsSection {
        Layout.fillWidth: true
        title: qsTr("Basic Information")

        LabelledField {
            Layout.maximumWidth: 500
            label: qsTr("Restaurant Name")
            placeholderText: qsTr("Enter Restaurant Name")
            text: root.name

            onTextEdited: root.name = text
        }

        LabelledField {
            Layout.maximumWidth: 500
            label: qsTr("Address")
            placeholderText: qsTr("Enter Address")
            text: root.address

            onTextEdited: root.address = text
        }

        LabelledField {
            Layout.maximumWidth: 500
            label: qsTr("Phone Number (optional)")
            placeholderText: qsTr("Enter Phone Number")
            text: root.phoneNumber

            onTextEdited: root.phoneNumber = text
        }

        LabelledField {
            Layout.maximumWidth: 500
            label: qsTr("Email (optional)")
            placeholderText: qsTr("Enter Email")
            text: root.email

            onTextEdited: root.email = text
        }

        LabelledField {
            Layout.maximumWidth: 500
            label: qsTr("Website (optional)")
            placeholderText: qsTr("Enter Website")
            text: root.website

            onTextEdited: root.website = text
        }
    }

    onSaveRequested: root.save()
    Component.onCompleted: root.load()
}
