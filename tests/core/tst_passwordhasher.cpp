// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/PasswordHasher.h"
#include "support/ZelvanTest.h"

class tst_PasswordHasher : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aHashTellsItsAlgorithmAndParameters();
    void twoHashesOfOnePasswordDifferAndBothVerify();
    void onlyThePasswordItselfVerifies_data();
    void onlyThePasswordItselfVerifies();
    void aTextThatIsNoHashNeverVerifies_data();
    void aTextThatIsNoHashNeverVerifies();
    void anEmptyPasswordHashesLikeAnyOther();
};

void tst_PasswordHasher::aHashTellsItsAlgorithmAndParameters()
{
    const QString hash = hashPassword(QStringLiteral("secret"));

    QVERIFY(hash.startsWith(QStringLiteral("$argon2id$v=19$m=65536,t=2,p=1$")));
    QVERIFY(hash.size() < 128);
}

void tst_PasswordHasher::twoHashesOfOnePasswordDifferAndBothVerify()
{
    const QString first = hashPassword(QStringLiteral("secret"));
    const QString second = hashPassword(QStringLiteral("secret"));

    QVERIFY(first != second);
    QVERIFY(verifyPassword(QStringLiteral("secret"), first));
    QVERIFY(verifyPassword(QStringLiteral("secret"), second));
}

void tst_PasswordHasher::onlyThePasswordItselfVerifies_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("tried");

    QTest::newRow("letter case") << "secret"
                                 << "Secret";
    QTest::newRow("blank at the end") << "secret"
                                      << "secret ";
    QTest::newRow("nothing") << "secret"
                             << "";
    QTest::newRow("other script") << QStringLiteral("密码") << QStringLiteral("密吗");
}

void tst_PasswordHasher::onlyThePasswordItselfVerifies()
{
    QFETCH(QString, password);
    QFETCH(QString, tried);

    const QString hash = hashPassword(password);

    QVERIFY(verifyPassword(password, hash));
    QVERIFY(!verifyPassword(tried, hash));
}

void tst_PasswordHasher::aTextThatIsNoHashNeverVerifies_data()
{
    QTest::addColumn<QString>("hash");

    QTest::newRow("empty") << "";
    QTest::newRow("the password itself") << "secret";
    QTest::newRow("cut off") << "$argon2id$v=19$m=65536,t=2,p=1$";
    QTest::newRow("very long") << QString(10000, QLatin1Char('a'));
}

void tst_PasswordHasher::aTextThatIsNoHashNeverVerifies()
{
    QFETCH(QString, hash);

    QVERIFY(!verifyPassword(QStringLiteral("secret"), hash));
}

void tst_PasswordHasher::anEmptyPasswordHashesLikeAnyOther()
{
    const QString hash = hashPassword(QString());

    QVERIFY(verifyPassword(QString(), hash));
    QVERIFY(!verifyPassword(QStringLiteral("x"), hash));
}

ZELVAN_TEST(tst_PasswordHasher)
#include "tst_passwordhasher.moc"
