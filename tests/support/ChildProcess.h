// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// Runs the test program once more in a process of its own, for what a test cannot do to itself:
/// dying, another clock, another language.
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

    /// Runs a function registered with ZELVAN_TEST_CHILD.
    explicit ChildProcess(const QString &function, const QStringList &arguments = {});
    /// Runs the current test function with its current row.
    [[nodiscard]] static ChildProcess ofCurrentTest();

    /// Freezes the child's clock at a local time, "yyyy-MM-dd HH:mm:ss". The child may move it by
    /// setting FAKETIME anew.
    void atTime(const QString &localTime) { m_localTime = localTime; }
    void setEnvironment(const QString &variable, const QString &value);
    /// A copy of the test program elsewhere; by default this one.
    void setProgram(const QString &program) { m_program = program; }

    /// Waits for the end, which counts as a crash when it does not come within a minute.
    [[nodiscard]] Result run() const;

private:
    explicit ChildProcess(const QStringList &arguments);

    QString m_program;
    QStringList m_arguments;
    QString m_localTime;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

/// Runs the current test function, with its current row, once more in a process whose clock stands
/// still at `localTime` ("yyyy-MM-dd HH:mm:ss") of `timeZone`, and fails the test when that process
/// does. True in the caller, which then returns; false inside that other process, which does the
/// test.
[[nodiscard]] bool movedTo(const QString &localTime, const QString &timeZone);
