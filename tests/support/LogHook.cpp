// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/LogHook.h"

LogHook *LogHook::s_current = nullptr;

LogHook::LogHook(const QString &startOfText, std::function<void()> action)
    : m_startOfText(startOfText)
    , m_action(std::move(action))
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_previous = qInstallMessageHandler(handle);
}

LogHook::~LogHook()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

void LogHook::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    LogHook *hook = s_current;
    if (message.startsWith(hook->m_startOfText)) {
        hook->m_action();
    }
    hook->m_previous(type, context, message);
}
