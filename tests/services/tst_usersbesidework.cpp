// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/ChildProcess.h"
#include "support/DatabaseFiles.h"
#include "support/SqliteWatch.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <random>
#include <vector>

namespace {
constexpr int newUsers = 5;
constexpr int quickRuns = 20;
/// Later than the last of the users, so that every moment of them is met.
constexpr int lastClosingMs = 700;

int runs()
{
    const int asked = qEnvironmentVariableIntValue("ZELVAN_THREAD_RUNS");
    return asked > 0 ? asked : quickRuns;
}

const char *const listDocument = R"(
import QtQuick

ListView {
    width: 300
    height: 400
    model: userService.userModel
    reuseItems: true
    delegate: Text {
        required property string username
        required property bool active
        text: username + " " + active
        textFormat: Text.PlainText
    }
})";

/// A till at work: at every turn of the event loop one piece of it, while users are made.
class BusyTill final
{
public:
    explicit BusyTill(unsigned seed)
        : m_chance(seed)
    {
        m_table = m_store.addTable(QStringLiteral("T1"));
        m_soup = m_store.addDish({});
        m_store.setKitchen(QStringLiteral("kds"), QStringLiteral("manual"));
        m_view.rootContext()->setContextProperty("userService", &m_store.services.users);
        QQmlComponent component(m_view.engine());
        component.setData(listDocument, QUrl("qrc:/UserList.qml"));
        m_list.reset(component.createWithInitialProperties({}));
        auto *const list = qobject_cast<QQuickItem *>(m_list.get());
        list->setParentItem(m_view.contentItem());
        m_view.show();
        QObject::connect(&m_turn, &QTimer::timeout, list, [this, list] {
            list->setWidth(300 + m_chance() % 9);
            work();
        });
        m_turn.start(0);
    }

    void makeUsers(const std::function<void()> &done)
    {
        QObject::connect(&m_store.services.users, &UserService::createUserFinished, &m_turn,
                         [this, done](bool success) {
                             m_made += success ? 1 : 0;
                             if (++m_answers == newUsers) {
                                 done();
                             }
                         });
        for (int number = 0; number < newUsers; ++number) {
            m_store.services.users.createUser(QStringLiteral("user %1").arg(number), "pw", "pw",
                                              "service_staff");
        }
    }

    /// What was acknowledged and is not in the file, told in words; empty when all is there.
    [[nodiscard]] QStringList losses() const
    {
        QStringList found;
        const auto check = [&](const char *what, const QString &sql, qint64 expected) {
            const qint64 stored = DatabaseFiles::value(m_store.database.path(), sql).toLongLong();
            if (stored != expected) {
                found.append(QStringLiteral("%1: %2 of %3").arg(what).arg(stored).arg(expected));
            }
        };
        check("users", QStringLiteral("SELECT COUNT(*) FROM users"), m_made);
        check("orders", QStringLiteral("SELECT COUNT(*) FROM orders"), m_orders);
        check("lines", QStringLiteral("SELECT COUNT(*) FROM order_items"), m_orders);
        check("payments",
              QStringLiteral("SELECT COUNT(*) FROM order_sessions WHERE status = 'paid' "
                             "AND total > 0 AND receipt_number IS NOT NULL"),
              m_payments);
        check("whole",
              QStringLiteral("SELECT COUNT(*) FROM pragma_integrity_check "
                             "WHERE integrity_check = 'ok'"),
              1);
        if (m_made != newUsers) {
            found.append(QStringLiteral("made %1 users").arg(m_made));
        }
        if (m_failures > 0) {
            found.append(QStringLiteral("%1 failures").arg(m_failures));
        }
        return found;
    }

private:
    void work()
    {
        Services &services = m_store.services;
        switch (m_chance() % 4) {
        case 0: {
            const int order = m_store.orderAtTable(m_table, {TestStore::line(m_soup)});
            if (order > 0) {
                ++m_orders;
                m_session = m_store.sessionOf(order);
            } else {
                ++m_failures;
            }
            break;
        }
        case 1:
            if (m_session > 0) {
                ++(services.checkout.completeCheckout(m_session, {}, 0) ? m_payments : m_failures);
                m_session = 0;
            }
            break;
        case 2:
            for (const char *status : {"pending", "in_progress", "ready"}) {
                services.kitchenOrders.getOrdersByStatus(QLatin1String(status));
            }
            break;
        default:
            static_cast<void>(services.analytics.getSnapshot());
        }
    }

    std::mt19937 m_chance;
    TestStore m_store;
    QQuickView m_view;
    std::unique_ptr<QObject> m_list;
    QTimer m_turn;
    int m_table = 0;
    int m_soup = 0;
    int m_session = 0;
    int m_answers = 0;
    int m_made = 0;
    int m_orders = 0;
    int m_payments = 0;
    int m_failures = 0;
};

/// SQLite's calls were seen, and no two threads met in one.
int verdictOfTheWatch(bool othersExpected)
{
    std::printf("calls %ld + %ld, collisions %ld\n", SqliteWatch::callsOfFirstThread(),
                SqliteWatch::callsOfOtherThreads(), SqliteWatch::collisions());
    const bool blind = SqliteWatch::callsOfFirstThread() == 0 ||
                       (othersExpected && SqliteWatch::callsOfOtherThreads() == 0);
    return SqliteWatch::collisions() > 0 ? 3 : blind ? 4 : 0;
}

int makeUsersBesideWork(const QStringList &arguments)
{
    QStringList losses;
    {
        BusyTill till(arguments.at(0).toUInt());
        till.makeUsers([] { QCoreApplication::quit(); });
        QCoreApplication::exec();
        losses = till.losses();
    }
    std::printf("%s\n", qPrintable(losses.join(QStringLiteral(", "))));
    return losses.isEmpty() ? verdictOfTheWatch(true) : 1;
}

int closeWhileUsersAreMade(const QStringList &arguments)
{
    {
        BusyTill till(arguments.at(0).toUInt());
        till.makeUsers([] {});
        QTimer::singleShot(arguments.at(1).toInt(), qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }
    return verdictOfTheWatch(false);
}
} // namespace
ZELVAN_TEST_CHILD(makeUsersBesideWork)
ZELVAN_TEST_CHILD(closeWhileUsersAreMade)

/// The pool's thread and the GUI thread use one connection, and are never inside it together.
class tst_UsersBesideWork : public ZelvanTest
{
    Q_OBJECT

private slots:
    void usersMadeBesideOrdersAndPaymentsLoseNothing();
    void theProgramMayCloseAtAnyMoment();

private:
    static QByteArray story(int run, const ChildProcess::Result &result)
    {
        return QByteArray("run ") + QByteArray::number(run) + ": exit " +
               QByteArray::number(result.exitCode) + (result.crashed ? " crashed\n" : "\n") +
               result.output + result.errors.right(4000);
    }
};

void tst_UsersBesideWork::usersMadeBesideOrdersAndPaymentsLoseNothing()
{
    for (int run = 0; run < runs(); ++run) {
        const ChildProcess::Result result =
            ChildProcess(QStringLiteral("makeUsersBesideWork"), {QString::number(run)}).run();

        QVERIFY2(!result.crashed && result.exitCode == 0, story(run, result).constData());
    }
}

void tst_UsersBesideWork::theProgramMayCloseAtAnyMoment()
{
    for (int run = 0; run < runs(); ++run) {
        const int moment = lastClosingMs * run / runs();
        const ChildProcess::Result result =
            ChildProcess(QStringLiteral("closeWhileUsersAreMade"),
                         {QString::number(run), QString::number(moment)})
                .run();

        QVERIFY2(!result.crashed && result.exitCode == 0, story(run, result).constData());
    }
}

ZELVAN_TEST(tst_UsersBesideWork)
#include "tst_usersbesidework.moc"
