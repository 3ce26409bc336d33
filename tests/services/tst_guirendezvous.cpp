// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/GuiRendezvous.h"
#include "support/ZelvanTest.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <vector>

class tst_GuiRendezvous : public ZelvanTest
{
    Q_OBJECT

private slots:
    void theWorkIsDoneOnTheThreadThatAsks();
    void theGuiThreadStandsStillMeanwhile();
    void oneComesAfterTheOther();
    void onceClosedNobodyIsWaitedFor();
    void whoeverWaitsAtTheCloseIsSentAway();
    void whatIsPostedComesOnTheGuiThread();
    void whatIsPostedWhileTheGuiThreadIsAtWorkIsSeenWhole();
    void nothingPostedComesAfterTheClose();
    void itOutlivesItsObject();

private:
    /// Runs the event loop until the other thread is done.
    template<typename Result>
    static Result answerOf(std::future<Result> answer)
    {
        while (answer.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        }
        return answer.get();
    }
};

void tst_GuiRendezvous::theWorkIsDoneOnTheThreadThatAsks()
{
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    std::thread::id asking;
    std::thread::id working;

    const bool met = answerOf(std::async(std::launch::async, [&] {
        asking = std::this_thread::get_id();
        return rendezvous->whileGuiStands([&] { working = std::this_thread::get_id(); });
    }));

    QVERIFY(met);
    QCOMPARE(working, asking);
    QVERIFY(working != std::this_thread::get_id());
}

void tst_GuiRendezvous::theGuiThreadStandsStillMeanwhile()
{
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    QTimer busy;
    std::atomic<int> turns = 0;
    connect(&busy, &QTimer::timeout, this, [&turns] { ++turns; });
    busy.start(0);
    int before = 0;
    int after = 0;

    const bool met = answerOf(std::async(std::launch::async, [&] {
        return rendezvous->whileGuiStands([&] {
            before = turns;
            QElapsedTimer clock;
            clock.start();
            while (clock.elapsed() < 50) {
                std::this_thread::yield();
            }
            after = turns;
        });
    }));

    QVERIFY(met);
    QCOMPARE(after, before);
    QTRY_VERIFY(turns > after);
}

void tst_GuiRendezvous::oneComesAfterTheOther()
{
    constexpr int guests = 4;
    constexpr int visits = 50;
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    std::atomic<int> inside = 0;
    std::atomic<int> together = 0;
    // Not guarded: the meeting itself orders it.
    int count = 0;

    std::vector<std::future<bool>> answers;
    for (int guest = 0; guest < guests; ++guest) {
        answers.push_back(std::async(std::launch::async, [&] {
            bool met = true;
            for (int visit = 0; visit < visits; ++visit) {
                met = rendezvous->whileGuiStands([&] {
                    together += ++inside > 1 ? 1 : 0;
                    ++count;
                    --inside;
                }) && met;
            }
            return met;
        }));
    }
    for (std::future<bool> &answer : answers) {
        QVERIFY(answerOf(std::move(answer)));
    }

    QCOMPARE(together.load(), 0);
    QCOMPARE(count, guests * visits);
}

void tst_GuiRendezvous::onceClosedNobodyIsWaitedFor()
{
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    rendezvous->close();
    bool worked = false;

    // No event loop runs here.
    const bool met = std::async(std::launch::async, [&] {
                         return rendezvous->whileGuiStands([&worked] { worked = true; });
                     }).get();

    QVERIFY(!met);
    QVERIFY(!worked);
}

void tst_GuiRendezvous::whoeverWaitsAtTheCloseIsSentAway()
{
    constexpr int guests = 3;
    const auto host = std::make_unique<QObject>();
    const auto rendezvous = GuiRendezvous::of(host.get());
    QSemaphore arrived;
    std::atomic<int> worked = 0;
    std::vector<std::future<bool>> answers;
    for (int guest = 0; guest < guests; ++guest) {
        answers.push_back(std::async(std::launch::async, [&] {
            arrived.release();
            return rendezvous->whileGuiStands([&worked] { ++worked; });
        }));
    }
    arrived.acquire(guests);

    rendezvous->close();

    for (std::future<bool> &answer : answers) {
        QVERIFY(!answer.get());
    }
    // What they left in the event loop does no harm.
    QCoreApplication::processEvents();
    QCOMPARE(worked.load(), 0);
}

void tst_GuiRendezvous::whatIsPostedComesOnTheGuiThread()
{
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    std::thread::id working;

    std::async(std::launch::async, [&] {
        rendezvous->post([&working] { working = std::this_thread::get_id(); });
    }).get();

    QCOMPARE(working, std::thread::id());
    QTRY_COMPARE(working, std::this_thread::get_id());
}

/// For the thread sanitizer: nothing but the rendezvous puts the two threads in order here, neither
/// the event loop's waking up nor the end of the other thread.
void tst_GuiRendezvous::whatIsPostedWhileTheGuiThreadIsAtWorkIsSeenWhole()
{
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    std::atomic<bool> posted = false;
    std::vector<int> seen;
    std::future<void> other;

    rendezvous->post([&] {
        other = std::async(std::launch::async, [&] {
            rendezvous->post([&seen, numbers = std::vector{1, 2, 3}] { seen = numbers; });
            posted.store(true, std::memory_order_relaxed);
        });
        while (!posted.load(std::memory_order_relaxed)) {
            std::this_thread::yield();
        }
    });

    QTRY_COMPARE(seen, std::vector({1, 2, 3}));
}

void tst_GuiRendezvous::nothingPostedComesAfterTheClose()
{
    QObject host;
    const auto rendezvous = GuiRendezvous::of(&host);
    bool worked = false;
    rendezvous->close();

    rendezvous->post([&worked] { worked = true; });
    QCoreApplication::processEvents();

    QVERIFY(!worked);
}

void tst_GuiRendezvous::itOutlivesItsObject()
{
    auto host = std::make_unique<QObject>();
    auto rendezvous = GuiRendezvous::of(host.get());
    std::future<bool> answer = std::async(std::launch::async, [guest = rendezvous] {
        return guest->whileGuiStands([] {}) && guest->whileGuiStands([] {});
    });

    // The first meeting may or may not have come about; the second one is sent away.
    rendezvous->close();
    rendezvous.reset();
    host.reset();

    QVERIFY(!answer.get());
}

ZELVAN_TEST(tst_GuiRendezvous)
#include "tst_guirendezvous.moc"
