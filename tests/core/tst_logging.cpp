// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Logging.h"
#include "support/ChildProcess.h"
#include "support/ZelvanTest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <thread>

namespace {
constexpr int linesPerThread = 500;

// What the child processes do.

int startLogging(const QStringList &)
{
    initLogging();
    return 0;
}

int logOneOfEach(const QStringList &)
{
    initLogging();
    qCDebug(lcOrder) << "a debug line";
    qCInfo(lcSetup) << "an info line" << 17;
    qCWarning(lcDatabase) << "update failed:" << QStringLiteral("disk \"full\"");
    qCCritical(lcMigration) << "Migration failed: %1 %2";
    qWarning("餐厅");
    const QMessageLogContext nameless;
    logMessageHandler(static_cast<QtMsgType>(6), nameless, QStringLiteral("of no known type"));
    return 0;
}

int logAcrossMidnight(const QStringList &)
{
    initLogging();
    qInfo("before");
    qputenv("FAKETIME", "2026-03-01 00:00:00");
    qInfo("after");
    qInfo("still after");
    return 0;
}

int logFromTwoThreads(const QStringList &)
{
    initLogging();
    const auto work = [](char letter) {
        const QString text(200, QLatin1Char(letter));
        for (int line = 0; line < linesPerThread; ++line) {
            qInfo("%s", qPrintable(text));
        }
    };
    std::thread first(work, 'a');
    std::thread second(work, 'b');
    first.join();
    second.join();
    return 0;
}

int dieOfAFatalMessage(const QStringList &)
{
    initLogging();
    qFatal("the end");
    return 0;
}

ZELVAN_TEST_CHILD(startLogging)
ZELVAN_TEST_CHILD(logOneOfEach)
ZELVAN_TEST_CHILD(logAcrossMidnight)
ZELVAN_TEST_CHILD(logFromTwoThreads)
ZELVAN_TEST_CHILD(dieOfAFatalMessage)

/// A data folder of its own, and the logs that a child leaves there.
class LogHome final
{
public:
    [[nodiscard]] ChildProcess child(const QString &function) const
    {
        ChildProcess process(function);
        process.setEnvironment(QStringLiteral("XDG_DATA_HOME"), m_home.path());
        process.setEnvironment(QStringLiteral("TZ"), QStringLiteral("Asia/Tokyo"));
        return process;
    }

    [[nodiscard]] QString folder() const
    {
        return m_home.filePath(QStringLiteral("Zelvan/ZelvanPOS/logs"));
    }

    [[nodiscard]] QStringList files() const
    {
        return QDir(folder()).entryList(QDir::Files, QDir::Name);
    }

    [[nodiscard]] QStringList lines(const QString &day) const
    {
        QFile file(QStringLiteral("%1/%2.log").arg(folder(), day));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            return {};
        }
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    void put(const QString &name) const
    {
        QDir().mkpath(folder());
        QFile file(folder() + QLatin1Char('/') + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("old\n");
    }

private:
    QTemporaryDir m_home;
};
} // namespace

class tst_Logging : public ZelvanTest
{
    Q_OBJECT

private slots:
    void categoriesHaveTheirTextsAndAllLevels_data();
    void categoriesHaveTheirTextsAndAllLevels();
    void linesHoldTimeLevelCategoryAndText();
    void linesAreRepeatedOnTheErrorStream();
    void oneDayHasOneFileThatGrows();
    void filesOlderThanThirtyDaysArePurgedAtStart();
    void theFirstMessageAfterMidnightOpensANewFile();
    void twoThreadsNeverMixTheirLines();
    void aFatalMessageIsWrittenBeforeTheProcessDies();
    void withoutAFileTheErrorStreamStillTells();
};

void tst_Logging::categoriesHaveTheirTextsAndAllLevels_data()
{
    QTest::addColumn<const QLoggingCategory *>("category");

    QTest::newRow("application") << &lcApplication();
    QTest::newRow("database") << &lcDatabase();
    QTest::newRow("migration") << &lcMigration();
    QTest::newRow("seeder") << &lcSeeder();
    QTest::newRow("checkout") << &lcCheckout();
    QTest::newRow("membership") << &lcMembership();
    QTest::newRow("printer") << &lcPrinter();
    QTest::newRow("floor_plan") << &lcFloorPlan();
    QTest::newRow("auth") << &lcAuth();
    QTest::newRow("order") << &lcOrder();
    QTest::newRow("menu") << &lcMenu();
    QTest::newRow("reservation") << &lcReservation();
    QTest::newRow("settings") << &lcSettings();
    QTest::newRow("setup") << &lcSetup();
}

void tst_Logging::categoriesHaveTheirTextsAndAllLevels()
{
    QFETCH(const QLoggingCategory *, category);

    QCOMPARE(category->categoryName(), QTest::currentDataTag());
    QVERIFY(category->isDebugEnabled() && category->isInfoEnabled());
    QVERIFY(category->isWarningEnabled() && category->isCriticalEnabled());
}

void tst_Logging::linesHoldTimeLevelCategoryAndText()
{
    const LogHome home;
    ChildProcess child = home.child(QStringLiteral("logOneOfEach"));
    child.atTime(QStringLiteral("2026-02-28 07:08:09"));

    QCOMPARE(child.run().exitCode, 0);

    const QString time = QStringLiteral("2026-02-28 07:08:09");
    QCOMPARE(home.files(), QStringList{QStringLiteral("2026-02-28.log")});
    QCOMPARE(home.lines(QStringLiteral("2026-02-28")),
             (QStringList{
                 time + QStringLiteral(" [INFO] [default] Logging initialized."),
                 time + QStringLiteral(" [DEBUG] [order] a debug line"),
                 time + QStringLiteral(" [INFO] [setup] an info line 17"),
                 time + QStringLiteral(" [WARN] [database] update failed: \"disk \\\"full\\\"\""),
                 time + QStringLiteral(" [ERROR] [migration] Migration failed: %1 %2"),
                 time + QStringLiteral(" [WARN] [default] 餐厅"),
                 time + QStringLiteral(" [] [] of no known type"),
             }));
}

void tst_Logging::linesAreRepeatedOnTheErrorStream()
{
    const LogHome home;
    ChildProcess child = home.child(QStringLiteral("logOneOfEach"));
    child.atTime(QStringLiteral("2026-02-28 07:08:09"));

    const QString errors = QString::fromUtf8(child.run().errors);

    QCOMPARE(errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts),
             home.lines(QStringLiteral("2026-02-28")));
}

void tst_Logging::oneDayHasOneFileThatGrows()
{
    const LogHome home;
    ChildProcess child = home.child(QStringLiteral("startLogging"));
    child.atTime(QStringLiteral("2026-02-28 07:08:09"));

    QCOMPARE(child.run().exitCode, 0);
    QCOMPARE(child.run().exitCode, 0);

    QCOMPARE(home.lines(QStringLiteral("2026-02-28")).size(), 2);
}

void tst_Logging::filesOlderThanThirtyDaysArePurgedAtStart()
{
    const LogHome home;
    const QStringList kept{
        QStringLiteral("2026-03-01.log"),     // exactly thirty days old
        QStringLiteral("2026-02-30.log"),     // no such day
        QStringLiteral("2020-01-01.old.log"), // no date
        QStringLiteral("notes.log"),          QStringLiteral("2020-01-01.txt"),
        QStringLiteral("2027-01-01.log"),
    };
    for (const QString &name : kept) {
        home.put(name);
    }
    home.put(QStringLiteral("2026-02-28.log"));
    home.put(QStringLiteral("2020-01-01.log"));
    ChildProcess child = home.child(QStringLiteral("startLogging"));
    child.atTime(QStringLiteral("2026-03-31 00:00:00"));

    QCOMPARE(child.run().exitCode, 0);

    QStringList expected = kept + QStringList{QStringLiteral("2026-03-31.log")};
    expected.sort();
    QStringList found = home.files();
    found.sort();
    QCOMPARE(found, expected);
}

void tst_Logging::theFirstMessageAfterMidnightOpensANewFile()
{
    const LogHome home;
    ChildProcess child = home.child(QStringLiteral("logAcrossMidnight"));
    child.atTime(QStringLiteral("2026-02-28 23:59:59"));

    QCOMPARE(child.run().exitCode, 0);

    QCOMPARE(home.lines(QStringLiteral("2026-02-28")),
             (QStringList{
                 QStringLiteral("2026-02-28 23:59:59 [INFO] [default] Logging initialized."),
                 QStringLiteral("2026-02-28 23:59:59 [INFO] [default] before"),
             }));
    QCOMPARE(home.lines(QStringLiteral("2026-03-01")),
             (QStringList{
                 QStringLiteral("2026-03-01 00:00:00 [INFO] [default] after"),
                 QStringLiteral("2026-03-01 00:00:00 [INFO] [default] still after"),
             }));
}

void tst_Logging::twoThreadsNeverMixTheirLines()
{
    const LogHome home;
    ChildProcess child = home.child(QStringLiteral("logFromTwoThreads"));
    child.atTime(QStringLiteral("2026-02-28 07:08:09"));

    QCOMPARE(child.run().exitCode, 0);

    const QString start = QStringLiteral("2026-02-28 07:08:09 [INFO] [default] ");
    const QStringList lines = home.lines(QStringLiteral("2026-02-28"));
    QCOMPARE(lines.size(), 1 + 2 * linesPerThread);
    QCOMPARE(lines.count(start + QString(200, QLatin1Char('a'))), linesPerThread);
    QCOMPARE(lines.count(start + QString(200, QLatin1Char('b'))), linesPerThread);
}

void tst_Logging::aFatalMessageIsWrittenBeforeTheProcessDies()
{
    const LogHome home;
    ChildProcess child = home.child(QStringLiteral("dieOfAFatalMessage"));

    const ChildProcess::Result result = child.run();

    QVERIFY(result.crashed);
    QVERIFY(result.errors.contains("[FATAL] [default] the end\n"));
    QCOMPARE(home.files().size(), 1);
    const QStringList lines = home.lines(home.files().constFirst().chopped(4));
    QVERIFY(lines.constLast().endsWith(QStringLiteral(" [FATAL] [default] the end")));
}

void tst_Logging::withoutAFileTheErrorStreamStillTells()
{
    const LogHome home;
    QTemporaryDir other;
    const QString obstacle = other.filePath(QStringLiteral("a file"));
    QFile file(obstacle);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    ChildProcess child = home.child(QStringLiteral("startLogging"));
    child.setEnvironment(QStringLiteral("XDG_DATA_HOME"), obstacle);
    child.atTime(QStringLiteral("2026-02-28 07:08:09"));

    const ChildProcess::Result result = child.run();

    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors,
             QByteArray("2026-02-28 07:08:09 [INFO] [default] Logging initialized.\n"));
}

ZELVAN_TEST(tst_Logging)
#include "tst_logging.moc"
