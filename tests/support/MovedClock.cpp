// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/MovedClock.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

namespace {
constexpr auto marker = "ZELVAN_TEST_CLOCK_MOVED";

QProcessEnvironment surroundings(const char *timeZone)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(marker), QStringLiteral("1"));
    environment.insert(QStringLiteral("TZ"), QString::fromLatin1(timeZone));
    environment.insert(QStringLiteral("DONT_FAKE_MONOTONIC"), QStringLiteral("1"));
    // The clock's library is loaded first, which the address sanitizer would refuse.
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       environment.value(QStringLiteral("ASAN_OPTIONS")) +
                           QStringLiteral(":verify_asan_link_order=0"));
    return environment;
}

QString currentFunction()
{
    QString function = QString::fromLatin1(QTest::currentTestFunction());
    if (QTest::currentDataTag() != nullptr) {
        function += QLatin1Char(':') + QString::fromLatin1(QTest::currentDataTag());
    }
    return function;
}
} // namespace

bool movedTo(const char *localTime, const char *timeZone)
{
    if (qEnvironmentVariableIsSet(marker)) {
        return false;
    }
    QProcess process;
    process.setProcessEnvironment(surroundings(timeZone));
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString className =
        QString::fromLatin1(QTest::testObject()->metaObject()->className()).toLower();
    process.start(QStringLiteral("faketime"),
                  {QString::fromLatin1(localTime), QCoreApplication::applicationFilePath(),
                   className, currentFunction()});
    constexpr int patience = 60'000;
    const bool ended = process.waitForFinished(patience);
    const bool passed =
        ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!passed) {
        QTest::qFail(qPrintable(QString::fromLocal8Bit(process.readAll()) + process.errorString()),
                     __FILE__, __LINE__);
    }
    return true;
}
