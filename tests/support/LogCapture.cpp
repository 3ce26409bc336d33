// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/LogCapture.h"

#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>

namespace {
QMutex mutex;
QStringList captured;

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

/// SQLite's own words differ between its versions, so they are not compared.
QString withoutErrorWords(QString text)
{
    static const QRegularExpression wholeError(QStringLiteral("QSqlError\\(.*\\)$"));
    static const QRegularExpression errorText(
        QStringLiteral("\"[^\"]*(Unable to|Parameter count|Driver not|Error opening)[^\"]*\"$"));
    text.replace(wholeError, QStringLiteral("<QSqlError>"));
    text.replace(errorText, QStringLiteral("<error text>"));
    return text;
}

void capture(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QMutexLocker locker(&mutex);
    captured.append(
        QStringLiteral("%1 [%2] %3")
            .arg(levelName(type), QString::fromUtf8(context.category), withoutErrorWords(message)));
}
} // namespace

LogCapture::LogCapture()
{
    captured.clear();
    m_previous = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
}

QStringList LogCapture::lines() const
{
    const QMutexLocker locker(&mutex);
    return captured;
}

QString logOf(const std::function<void()> &operation)
{
    const LogCapture log;
    operation();
    return log.lines().join(QLatin1Char('\n'));
}
