// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/ChildProcess.h"

#include <QCoreApplication>
#include <QProcess>

ChildProcess::ChildProcess(const QString &function, const QStringList &arguments)
    : m_program(QCoreApplication::applicationFilePath())
    , m_arguments(QStringList{QStringLiteral("child:") + function} + arguments)
{
    // The clock is read anew at every call, so that the child can move it.
    setEnvironment(QStringLiteral("FAKETIME_NO_CACHE"), QStringLiteral("1"));
    // The preloaded clock comes before the sanitizer's library.
    setEnvironment(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
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
    result.crashed = !finished || process.exitStatus() == QProcess::CrashExit;
    result.exitCode = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}
