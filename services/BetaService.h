// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

/// Sends the optional sign-up at the end of the setup: the only network traffic of the program.
class BetaService final : public QObject
{
    Q_OBJECT

public:
    explicit BetaService(QObject *parent = nullptr);

    /// Posts the form once, with no time-out and no retry. A blank email sends nothing.
    Q_INVOKABLE void submitBetaInfo(const QString &name, const QString &email);

    /// Where the form goes; the build's own address unless told otherwise.
    void setEndpoint(const QUrl &endpoint) { m_endpoint = endpoint; }

signals:
    /// Once for each call, also for one that sent nothing.
    void submitFinished(bool success);

private:
    QNetworkAccessManager m_network;
    QUrl m_endpoint;
};
