// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/ChildProcess.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

namespace {
// Of abort(), where it is no signal that ends the process.
constexpr int abortCode = 3;
constexpr auto movedMarker = "ZELVAN_TEST_CLOCK_MOVED";

QString currentFunction()
{
    QString function = QString::fromLatin1(QTest::currentTestFunction());
    if (QTest::currentDataTag() != nullptr) {
        function += QLatin1Char(':') + QString::fromLatin1(QTest::currentDataTag());
    }
    return function;
}
} // namespace

ChildProcess::ChildProcess(const QString &function, const QStringList &arguments)
    : ChildProcess(QStringList{QStringLiteral("child:") + function} + arguments)
{}

ChildProcess ChildProcess::ofCurrentTest()
{
    const QString className =
        QString::fromLatin1(QTest::testObject()->metaObject()->className()).toLower();
    return ChildProcess(QStringList{className, currentFunction()});
}

ChildProcess::ChildProcess(const QStringList &arguments)
    : m_program(QCoreApplication::applicationFilePath())
    , m_arguments(arguments)
{
    // The clock is read anew at every call, so that the child can move it; what waits goes by the
    // time that passes.
    setEnvironment(QStringLiteral("FAKETIME_NO_CACHE"), QStringLiteral("1"));
    setEnvironment(QStringLiteral("DONT_FAKE_MONOTONIC"), QStringLiteral("1"));
    // The preloaded clock comes before the sanitizer's library.
    const QString sanitizer = QStringLiteral("ASAN_OPTIONS");
    setEnvironment(sanitizer,
                   m_environment.value(sanitizer) + QStringLiteral(":verify_asan_link_order=0"));
}

void ChildProcess::setEnvironment(const QString &variable, const QString &value)
{
    m_environment.insert(variable, value);
}

ChildProcess::Result ChildProcess::run() const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    if (m_localTime.isEmpty()) {
        process.start(m_program, m_arguments);
    } else {
        process.start(QStringLiteral("faketime"),
                      QStringList{QStringLiteral("-f"), m_localTime, m_program} + m_arguments);
    }
    const bool finished = process.waitForFinished(60000);
    Result result;
    result.exitCode = process.exitCode();
    result.crashed =
        !finished || process.exitStatus() == QProcess::CrashExit || result.exitCode == abortCode;
    // Some systems end a line of text with two characters.
    result.output = process.readAllStandardOutput().replace("\r\n", "\n");
    result.errors = process.readAllStandardError().replace("\r\n", "\n");
    if (result.crashed) {
        result.errors += process.errorString().toLocal8Bit();
    }
    return result;
}

bool movedTo(const QString &localTime, const QString &timeZone)
{
    if (qEnvironmentVariableIsSet(movedMarker)) {
        return false;
    }
    ChildProcess child = ChildProcess::ofCurrentTest();
    child.setEnvironment(QString::fromLatin1(movedMarker), QStringLiteral("1"));
    child.setEnvironment(QStringLiteral("TZ"), timeZone);
    child.atTime(localTime);
    const ChildProcess::Result result = child.run();
    if (result.crashed || result.exitCode != 0) {
        QTest::qFail((result.output + result.errors).constData(), __FILE__, __LINE__);
    }
    return true;
}
