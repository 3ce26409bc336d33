// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/PrinterRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db;
    PrinterRepository printers{db.handle()};
};

Printer printer(const QString &systemName, int id = -1)
{
    Printer printer;
    printer.id = id;
    printer.system_name = systemName;
    printer.role = QStringLiteral("both");
    printer.paper_width = 80;
    printer.cut_mode = QStringLiteral("partial");
    return printer;
}
} // namespace

class tst_PrinterRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anInsertedPrinterIsReadBackWhole();
    void anUpdateChangesTheFieldsAndStampsTheChange();
    void anUpdateOfNoPrinterChangesNothing();
    void aSystemPrinterIsRegisteredOnce();
    void aRemovedPrinterIsGone();
    void everyFailureIsLogged();
};

void tst_PrinterRepository::anInsertedPrinterIsReadBackWhole()
{
    Fixture f;

    f.printers.insert(printer(QStringLiteral("TM88")));
    f.printers.insert(printer(QStringLiteral("Küche")));

    const std::optional<Printer> found = f.printers.fetchById(1);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->system_name, QStringLiteral("TM88"));
    QCOMPARE(found->role, QStringLiteral("both"));
    QCOMPARE(found->paper_width, 80);
    QCOMPARE(found->cut_mode, QStringLiteral("partial"));
    QCOMPARE(f.printers.fetchAll().size(), 2);
    QCOMPARE(f.printers.fetchAll().at(1).system_name, QStringLiteral("Küche"));
    QVERIFY(!f.printers.fetchById(3));
}

void tst_PrinterRepository::anUpdateChangesTheFieldsAndStampsTheChange()
{
    Fixture f;
    f.printers.insert(printer(QStringLiteral("TM88")));
    f.db.run(QStringLiteral("UPDATE printers SET updated_at = '2001', created_at = '2001'"));
    Printer changed = printer(QStringLiteral("TM20"), 1);
    changed.role = QStringLiteral("kitchen");
    changed.paper_width = 58;
    changed.cut_mode = QStringLiteral("none");

    f.printers.update(changed);

    const std::optional<Printer> found = f.printers.fetchById(1);
    QCOMPARE(found->system_name, QStringLiteral("TM20"));
    QCOMPARE(found->role, QStringLiteral("kitchen"));
    QCOMPARE(found->paper_width, 58);
    QCOMPARE(found->cut_mode, QStringLiteral("none"));
    QVERIFY(
        f.db.value(QStringLiteral("SELECT updated_at > '2020-01-01' AND created_at = '2001' FROM "
                                  "printers"))
            .toBool());
}

void tst_PrinterRepository::anUpdateOfNoPrinterChangesNothing()
{
    Fixture f;
    f.printers.insert(printer(QStringLiteral("TM88")));

    f.printers.update(printer(QStringLiteral("TM20"), 7));

    QCOMPARE(f.printers.fetchAll().size(), 1);
    QCOMPARE(f.printers.fetchById(1)->system_name, QStringLiteral("TM88"));
}

void tst_PrinterRepository::aSystemPrinterIsRegisteredOnce()
{
    Fixture f;
    f.printers.insert(printer(QStringLiteral("TM88")));

    const QString log = logOf([&] { f.printers.insert(printer(QStringLiteral("TM88"))); });

    QCOMPARE(log, QStringLiteral("warning [database] Failed to insert printer: <error text>"));
    QCOMPARE(f.printers.fetchAll().size(), 1);
}

void tst_PrinterRepository::aRemovedPrinterIsGone()
{
    Fixture f;
    f.printers.insert(printer(QStringLiteral("TM88")));
    f.printers.insert(printer(QStringLiteral("TM20")));

    f.printers.remove(1);

    QVERIFY(!f.printers.fetchById(1));
    QVERIFY(f.printers.fetchById(2));
}

void tst_PrinterRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <error text>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("DROP TABLE printers"));

    QCOMPARE(logOf([&] { f.printers.insert(Printer()); }), line("Failed to insert printer:"));
    QCOMPARE(logOf([&] { f.printers.update(Printer()); }), line("Failed to update printer:"));
    QCOMPARE(logOf([&] { f.printers.remove(1); }), line("Failed to delete printer:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.printers.fetchById(1)); }), line("Failed to get printer:"));
    QCOMPARE(logOf([&] { QVERIFY(f.printers.fetchAll().isEmpty()); }),
             line("Failed to get all printers:"));
}

ZELVAN_TEST(tst_PrinterRepository)
#include "tst_printerrepository.moc"
