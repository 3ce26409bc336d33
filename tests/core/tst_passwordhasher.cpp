// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/PasswordHasher.h"
#include "support/ZelvanTest.h"

#include <QElapsedTimer>

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
    void aHashOfOtherModestParametersVerifies_data();
    void aHashOfOtherModestParametersVerifies();
    void aHashThatAsksForTooMuchIsAWrongPassword_data();
    void aHashThatAsksForTooMuchIsAWrongPassword();
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

void tst_PasswordHasher::aHashOfOtherModestParametersVerifies_data()
{
    QTest::addColumn<QString>("hash");

    // Of "secret", made by libsodium.
    QTest::newRow("less memory") << "$argon2id$v=19$m=8192,t=1,p=1$RxtW8Yv+v7Fvcc3S12d4GA$"
                                    "vkEBPabwtkZEWsRNu3Lgt9rU6cjZsFRdW5R3OYnHd94";
    QTest::newRow("four times the memory and the time")
        << "$argon2id$v=19$m=262144,t=8,p=1$EckwgtHc7V4mScU/cIUJEg$"
           "hZD7/CuW8dNIl5Ya0FGyQlvfrLZ7NLQpM12fOX454Z8";
    QTest::newRow("the older kind") << "$argon2i$v=19$m=32768,t=4,p=1$mJgwclhQ7PtpJIPlaoue9g$"
                                       "a8DyUYlhUWmBFZx0NpDW/7JWC1X4p0eCwPS87WTcpK8";
}

void tst_PasswordHasher::aHashOfOtherModestParametersVerifies()
{
    QFETCH(QString, hash);

    QVERIFY(verifyPassword(QStringLiteral("secret"), hash));
}

void tst_PasswordHasher::aHashThatAsksForTooMuchIsAWrongPassword_data()
{
    QTest::addColumn<QString>("parameters");

    QTest::newRow("4 GiB") << "$argon2id$v=19$m=4194304,t=2,p=1$";
    QTest::newRow("a little more memory than sane") << "$argon2id$v=19$m=262145,t=2,p=1$";
    QTest::newRow("hours") << "$argon2id$v=19$m=65536,t=4294967295,p=1$";
    QTest::newRow("a little more time than sane") << "$argon2id$v=19$m=65536,t=9,p=1$";
    QTest::newRow("the older kind") << "$argon2i$v=19$m=4194304,t=4,p=1$";
    QTest::newRow("more than a number holds") << "$argon2id$v=19$m=99999999999999999999,t=2,p=1$";
}

void tst_PasswordHasher::aHashThatAsksForTooMuchIsAWrongPassword()
{
    QFETCH(QString, parameters);
    const QString hash = parameters + "c29tZXNhbHRzb21lc2FsdA$"
                                      "RdescudvJCsgt3ub+b7dWRWJTmaaJObGRdescudvJCs";
    QElapsedTimer clock;

    expectLog(QtWarningMsg, "Password hash refused: it asks for too much memory or time.");
    clock.start();
    QVERIFY(!verifyPassword(QStringLiteral("secret"), hash));

    QVERIFY2(clock.elapsed() < 100, qPrintable(QString::number(clock.elapsed())));
}

ZELVAN_TEST(tst_PasswordHasher)
#include "tst_passwordhasher.moc"
