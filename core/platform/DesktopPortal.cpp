// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/DesktopPortal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QMap>
#include <QVariantMap>

namespace {

using Groups = QMap<QString, QVariantMap>;

constexpr int longestWaitMs = 100;
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString desktop = QStringLiteral("org.gnome.desktop.interface");

/// Asked for a bus that is not there, the library would start one, which takes its time.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

Groups settingsOfPortal()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"));
    question << QStringList{appearance, desktop};
    const QDBusMessage answer =
        QDBusConnection::sessionBus().call(question, QDBus::Block, longestWaitMs);
    if (answer.type() != QDBusMessage::ReplyMessage ||
        answer.signature() != QLatin1String("a{sa{sv}}")) {
        return {};
    }
    return qdbus_cast<Groups>(answer.arguments().constFirst());
}

} // namespace

std::optional<bool> desktopPortalPrefersDarkMode()
{
    if (!hasSessionBus()) {
        return std::nullopt;
    }
    const Groups groups = settingsOfPortal();
    switch (groups[appearance][QStringLiteral("color-scheme")].toUInt()) {
    case 1:
        return true;
    case 2:
        return false;
    default:
        break;
    }
    // Desktops without such a switch have themes, the dark ones named so ("Adwaita-dark").
    if (groups[desktop][QStringLiteral("gtk-theme")].toString().contains(QLatin1String("dark"),
                                                                         Qt::CaseInsensitive)) {
        return true;
    }
    return std::nullopt;
}
