// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/UserRepository.h"
#include "services/UserService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QThreadPool>

#include <atomic>
#include <memory>

namespace {
const char *const listDocument = R"(
import QtQuick

ListView {
    property int changes: 0
    width: 300
    height: 400
    model: userService.userModel
    reuseItems: true
    delegate: Text {
        required property string username
        required property string role
        required property bool active
        text: username + " " + role + " " + active
        textFormat: Text.PlainText
    }

    Connections {
        target: userService
        function onUsersChanged() { changes += 1 }
    }
})";
} // namespace

/// Users are created by a pool thread while the screens go on reading the list.
class tst_UserListThreads : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aListOnScreenFollowsEveryNewUser();
    void rowsAreReadWholeWhileAnotherThreadRefills();
    void aRefillThatIsNeverDeliveredIsFreed();

private:
    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<UserRepository> m_users;
    std::unique_ptr<UserService> m_service;
};

void tst_UserListThreads::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_users = std::make_unique<UserRepository>(m_database->handle());
    m_service = std::make_unique<UserService>(m_users.get());
}

void tst_UserListThreads::cleanup()
{
    m_service.reset();
    QThreadPool::globalInstance()->waitForDone();
    m_users.reset();
    m_database.reset();
}

void tst_UserListThreads::aListOnScreenFollowsEveryNewUser()
{
    constexpr int newUsers = 8;
    QQuickView view;
    view.rootContext()->setContextProperty("userService", m_service.get());
    QQmlComponent component(view.engine());
    component.setData(listDocument, QUrl("qrc:/UserList.qml"));
    const std::unique_ptr<QObject> root(component.createWithInitialProperties({}));
    QVERIFY2(root, qPrintable(component.errorString()));
    auto *list = qobject_cast<QQuickItem *>(root.get());
    list->setParentItem(view.contentItem());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    for (int number = 1; number <= newUsers; ++number) {
        QSignalSpy finished(m_service.get(), &UserService::createUserFinished);
        m_service->createUser(QStringLiteral("user %1").arg(number), "pw", "pw", "admin");
        // The screen lives on: it lays out and paints rows while the pool works.
        while (finished.isEmpty()) {
            list->setProperty("width", list->width() + 1);
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        }
        QVERIFY(finished.constFirst().constFirst().toBool());
        QTRY_COMPARE(list->property("count").toInt(), number);
    }

    QTRY_COMPARE(list->property("changes").toInt(), newUsers);
    QQuickItem *last = nullptr;
    QVERIFY(QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, last),
                                      Q_ARG(int, newUsers - 1)));
    QVERIFY(last);
    QCOMPARE(last->property("text").toString(), QStringLiteral("user 8 admin true"));
}

void tst_UserListThreads::rowsAreReadWholeWhileAnotherThreadRefills()
{
    constexpr int refills = 300;
    m_database->run("INSERT INTO users (username, password, role) VALUES "
                    "('mei', 'x', 'admin'), ('tom', 'x', 'admin'), ('ann', 'x', 'admin')");
    UserModel *model = m_service->userModel();
    model->reload();
    std::atomic<bool> done = false;

    QThreadPool::globalInstance()->start([model, &done] {
        for (int refill = 0; refill < refills; ++refill) {
            model->reload();
        }
        done = true;
    });
    const QVariantList expected{"mei", "tom", "ann"};
    int reads = 0;
    while (!done) {
        QCOMPARE(ModelRows::column(*model, "username"), expected);
        QCoreApplication::processEvents();
        ++reads;
    }

    QVERIFY(reads > 0);
}

void tst_UserListThreads::aRefillThatIsNeverDeliveredIsFreed()
{
    UserModel *model = m_service->userModel();

    // The leak checker is the judge here: the service goes before the event loop runs again.
    QThreadPool::globalInstance()->start([model] { model->reload(); });
    QThreadPool::globalInstance()->waitForDone();
    m_service.reset();

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(0));
}

ZELVAN_TEST(tst_UserListThreads)
#include "tst_userlistthreads.moc"
