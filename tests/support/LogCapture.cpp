// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/LogCapture.h"

#include <QRegularExpression>

namespace {
QStringList &captured()
{
    static QStringList lines;
    return lines;
}

QString levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    }
    return {};
}

void keep(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const QRegularExpression fullError(QStringLiteral("QSqlError\\(.*\\)$"));
    static const QRegularExpression errorText(QStringLiteral("\"[^\"]*(fetch row|statement)\"$"));
    QString text = message;
    text.replace(fullError, QStringLiteral("<error>"));
    text.replace(errorText, QStringLiteral("<error>"));
    captured().append(QStringLiteral("%1 %2: %3")
                          .arg(levelName(type), QString::fromLatin1(context.category), text));
}
} // namespace

LogCapture::LogCapture()
{
    captured().clear();
    m_previous = qInstallMessageHandler(keep);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
}

QStringList LogCapture::lines()
{
    return captured();
}
