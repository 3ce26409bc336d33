// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/BetaService.h"

#include "core/Logging.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrlQuery>

namespace {
// Older than the version on the screens; the receiver knows this one, so it stays.
const QString betaVersion = QStringLiteral("0.2.1");

QNetworkRequest formRequest(const QUrl &endpoint)
{
    QNetworkRequest request(endpoint);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    request.setRawHeader("Accept", "application/json");
    request.setRawHeader("User-Agent", "Zelvan-Beta/0.2.1");
    return request;
}

/// A query takes its items as already encoded: a plus or a percent sign in one would stand for
/// something else to the reader of the form.
QString asTyped(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "@"));
}

QByteArray formBody(const QString &name, const QString &email)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("name"), asTyped(name));
    query.addQueryItem(QStringLiteral("email"), asTyped(email));
    query.addQueryItem(QStringLiteral("_subject"), QStringLiteral("Zelvan Beta Signup"));
    query.addQueryItem(QStringLiteral("version"), betaVersion);
    return query.toString(QUrl::FullyEncoded).toUtf8();
}
} // namespace

BetaService::BetaService(QObject *parent)
    : QObject(parent)
    , m_endpoint(QStringLiteral(ZELVAN_BETA_ENDPOINT))
{}

void BetaService::submitBetaInfo(const QString &name, const QString &email)
{
    const QString trimmedEmail = email.trimmed();
    if (trimmedEmail.isEmpty()) {
        qCInfo(lcApplication) << "BetaService: empty email, skipping submit";
        emit submitFinished(false);
        return;
    }
    QNetworkReply *reply =
        m_network.post(formRequest(m_endpoint), formBody(name.trimmed(), trimmedEmail));
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        const bool success = reply->error() == QNetworkReply::NoError;
        if (success) {
            qCInfo(lcApplication) << "BetaService: Formspree submit succeeded";
        } else {
            qCWarning(lcApplication)
                << "BetaService: Formspree submit failed:" << reply->errorString();
        }
        reply->deleteLater();
        emit submitFinished(success);
    });
}
