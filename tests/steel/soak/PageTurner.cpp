// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/soak/PageTurner.h"

#include <QCoreApplication>
#include <QEvent>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQmlExpression>

namespace {
QString page(const QString &document)
{
    return QStringLiteral(
               "stackView.replace(null, Qt.resolvedUrl('%1.qml'), {}, StackView.Immediate)")
        .arg(document);
}

QStringList makeRound()
{
    QStringList round;
    for (const char *home :
         {"admin/AdminHome", "serviceStaff/ServiceStaffHome", "kitchenStaff/KitchenStaffHome"}) {
        round.append(page(QString::fromLatin1(home)));
        if (round.size() == 1) {
            for (int row = 0; row < 7; ++row) {
                round.append(QStringLiteral("stackView.currentItem.loadPage(%1)").arg(row));
            }
        }
    }
    for (const char *document :
         {"AdminMenuManagement", "AdminTableManagement", "AdminMembersManagement",
          "AdminUserManagement", "AdminFloorPlanManagement"}) {
        round.append(page(QStringLiteral("admin/management/") + QLatin1String(document)));
    }
    round.append(page(QStringLiteral("auth/Login")));
    return round;
}
} // namespace

PageTurner::PageTurner(QQmlApplicationEngine &engine)
    : m_engine(engine)
{}

void PageTurner::next()
{
    static const QStringList round = makeRound();
    run(round.at(m_next % round.size()));
    ++m_next;
}

void PageTurner::toLogin()
{
    run(page(QStringLiteral("auth/Login")));
    // A step inside a home page stands only behind the one that opens it.
    m_next = 0;
    m_engine.collectGarbage();
    QCoreApplication::processEvents();
}

void PageTurner::run(const QString &script)
{
    QObject *const window = m_engine.rootObjects().constFirst();
    QQmlExpression expression(qmlContext(window), window, script);
    expression.evaluate();
    if (expression.hasError()) {
        qFatal("%s: %s", qPrintable(script), qPrintable(expression.error().toString()));
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
