// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/PatientThread.h"
#include "support/ZelvanTest.h"

#include <QElapsedTimer>

#include <future>
#include <memory>
#include <thread>

using namespace std::chrono_literals;

class tst_PatientThread : public ZelvanTest
{
    Q_OBJECT

private slots:
    void allWorkIsDoneOnOneOtherThread();
    void workThatHangsIsLeftBehind();
    void whatWorkHoldsIsLetGoOnItsThread();
};

void tst_PatientThread::allWorkIsDoneOnOneOtherThread()
{
    PatientThread thread;
    std::thread::id first;
    std::thread::id second;

    QVERIFY(thread.run([&first] { first = std::this_thread::get_id(); }, 10s));
    QVERIFY(thread.run([&second] { second = std::this_thread::get_id(); }, 10s));

    QVERIFY(first != std::this_thread::get_id());
    QVERIFY(first == second);
}

void tst_PatientThread::workThatHangsIsLeftBehind()
{
    std::promise<void> release;
    std::promise<void> ended;
    QElapsedTimer clock;
    clock.start();
    {
        PatientThread thread;

        QVERIFY(!thread.run(
            [waiting = release.get_future().share(), &ended] {
                waiting.wait();
                ended.set_value();
            },
            50ms));
        // Nothing more is asked of it, and nothing waits for it.
        QVERIFY(!thread.run([] {}, 10s));
    }
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));

    release.set_value();

    ended.get_future().get();
}

void tst_PatientThread::whatWorkHoldsIsLetGoOnItsThread()
{
    std::thread::id working;
    std::thread::id releasing;
    std::shared_ptr<int> held(new int(0), [&releasing](const int *value) {
        releasing = std::this_thread::get_id();
        delete value;
    });
    PatientThread thread;

    QVERIFY(thread.run([held = std::move(held), &working] { working = std::this_thread::get_id(); },
                       10s));

    QVERIFY(releasing == working);
}

ZELVAN_TEST(tst_PatientThread)
#include "tst_patientthread.moc"
