// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// Runs a function registered with ZELVAN_TEST_CHILD in a process of its own, for what a test
/// cannot do to itself: dying, another clock, another language.
class ChildProcess final
{
public:
    struct Result
    {
        int exitCode = -1;
        bool crashed = false;
        QByteArray output;
        QByteArray errors;
    };

    explicit ChildProcess(const QString &function, const QStringList &arguments = {});

    /// Freezes the child's clock at a local time, "yyyy-MM-dd HH:mm:ss". The child may move it by
    /// setting FAKETIME anew.
    void atTime(const QString &localTime) { m_localTime = localTime; }
    void setEnvironment(const QString &variable, const QString &value);
    /// A copy of the test program elsewhere; by default this one.
    void setProgram(const QString &program) { m_program = program; }

    /// Waits for the end, which counts as a crash when it does not come within a minute.
    [[nodiscard]] Result run() const;

private:
    QString m_program;
    QStringList m_arguments;
    QString m_localTime;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};
