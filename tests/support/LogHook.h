// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

/// Does something in the very moment a log line is written: how a test steps in between two steps
/// of one operation, as another process on the machine might. Every line goes on to the test's own
/// handler. One at a time.
class LogHook final
{
public:
    LogHook(const QString &startOfText, std::function<void()> action);
    ~LogHook();
    Q_DISABLE_COPY_MOVE(LogHook)

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    static LogHook *s_current;

    QString m_startOfText;
    std::function<void()> m_action;
    QtMessageHandler m_previous;
};
