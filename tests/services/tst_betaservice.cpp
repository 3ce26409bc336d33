// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/BetaService.h"
#include "support/ZelvanTest.h"

#include <QHostAddress>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>

namespace {
/// Takes one form post after another on the loopback and answers each with the status given.
class FormServer final : public QTcpServer
{
public:
    explicit FormServer(const QByteArray &status)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, status] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, status] {
                m_received += socket->readAll();
                if (isComplete()) {
                    socket->write("HTTP/1.1 " + status +
                                  "\r\nContent-Length: 2\r\nConnection: close\r\n\r\n{}");
                    socket->disconnectFromHost();
                }
            });
        });
    }

    [[nodiscard]] QUrl url() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/form").arg(serverPort()));
    }
    [[nodiscard]] QByteArray head() const { return m_received.left(endOfHead()); }
    [[nodiscard]] QByteArray body() const { return m_received.mid(endOfHead() + 4); }
    [[nodiscard]] bool hasHeader(const QByteArray &line) const
    {
        return head().toLower().split('\n').contains(line.toLower() + '\r');
    }
    [[nodiscard]] bool isUntouched() const { return m_received.isEmpty(); }

private:
    [[nodiscard]] qsizetype endOfHead() const { return m_received.indexOf("\r\n\r\n"); }
    [[nodiscard]] bool isComplete() const { return m_received.endsWith("version=0.2.1"); }

    QByteArray m_received;
};

/// Name and value as the reader of a form takes them: a plus is a blank, and what follows a percent
/// sign is a byte.
QPair<QString, QString> readField(QByteArray field)
{
    field.replace('+', ' ');
    const qsizetype end = field.indexOf('=');
    return {QString::fromUtf8(QByteArray::fromPercentEncoding(field.left(end))),
            QString::fromUtf8(QByteArray::fromPercentEncoding(field.mid(end + 1)))};
}
} // namespace

class tst_BetaService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void theFormIsPostedWithItsFourFields();
    void aTextIsEncodedAsUtf8();
    void aFormReaderGetsWhatWasTyped_data();
    void aFormReaderGetsWhatWasTyped();
    void aRefusalIsNoSuccess();
    void anUnreachableServerIsNoSuccess();
    void aBlankEmailSendsNothing_data();
    void aBlankEmailSendsNothing();
};

void tst_BetaService::theFormIsPostedWithItsFourFields()
{
    const FormServer server("200 OK");
    BetaService beta;
    beta.setEndpoint(server.url());
    QSignalSpy finished(&beta, &BetaService::submitFinished);

    expectLog(QtInfoMsg, "BetaService: Formspree submit succeeded");
    beta.submitBetaInfo("  Corner Cafe ", " mei@example.invalid ");
    QVERIFY(finished.wait());

    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.constFirst().constFirst().toBool(), true);
    QVERIFY(server.head().startsWith("POST /form HTTP/1.1"));
    QVERIFY(server.hasHeader("Content-Type: application/x-www-form-urlencoded"));
    QVERIFY(server.hasHeader("Accept: application/json"));
    QVERIFY(server.hasHeader("User-Agent: Zelvan-Beta/0.2.1"));
    QCOMPARE(server.body(), QByteArray("name=Corner%20Cafe&email=mei@example.invalid&"
                                       "_subject=Zelvan%20Beta%20Signup&version=0.2.1"));
}

void tst_BetaService::aTextIsEncodedAsUtf8()
{
    const FormServer server("200 OK");
    BetaService beta;
    beta.setEndpoint(server.url());
    QSignalSpy finished(&beta, &BetaService::submitFinished);

    beta.submitBetaInfo(QString::fromUtf8("餐 & Söhne"), "mei@example.invalid");
    QVERIFY(finished.wait());

    QVERIFY(server.body().startsWith("name=%E9%A4%90%20%26%20S%C3%B6hne&email="));
}

void tst_BetaService::aFormReaderGetsWhatWasTyped_data()
{
    QTest::addColumn<QString>("typed");

    QTest::newRow("plus") << "mei+till@example.invalid";
    QTest::newRow("percent sign") << "100%";
    QTest::newRow("percent sign before digits") << "%41%2B";
    QTest::newRow("separators") << "a&b=c;d#e?f";
    QTest::newRow("Chinese") << QString::fromUtf8("\xe9\xa4\x90\xe5\x8e\x85 + 100%");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x8d\x9c");
    QTest::newRow("marks") << "~!$'()*,/:[]\\^`{|}\"<>";
}

void tst_BetaService::aFormReaderGetsWhatWasTyped()
{
    QFETCH(QString, typed);
    const FormServer server("200 OK");
    BetaService beta;
    beta.setEndpoint(server.url());
    QSignalSpy finished(&beta, &BetaService::submitFinished);

    beta.submitBetaInfo(typed, typed);
    QVERIFY(finished.wait());

    const QByteArrayList fields = server.body().split('&');
    QCOMPARE(fields.size(), 4);
    QCOMPARE(readField(fields[0]), qMakePair(QStringLiteral("name"), typed));
    QCOMPARE(readField(fields[1]), qMakePair(QStringLiteral("email"), typed));
}

void tst_BetaService::aRefusalIsNoSuccess()
{
    const FormServer server("422 Unprocessable Entity");
    BetaService beta;
    beta.setEndpoint(server.url());
    QSignalSpy finished(&beta, &BetaService::submitFinished);

    expectLog(QtWarningMsg, "BetaService: Formspree submit failed:");
    beta.submitBetaInfo("", "mei@example.invalid");
    QVERIFY(finished.wait());

    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.constFirst().constFirst().toBool(), false);
    QVERIFY(server.body().startsWith("name=&email="));
}

void tst_BetaService::anUnreachableServerIsNoSuccess()
{
    FormServer server("200 OK");
    BetaService beta;
    beta.setEndpoint(server.url());
    server.close();
    QSignalSpy finished(&beta, &BetaService::submitFinished);

    expectLog(QtWarningMsg, "BetaService: Formspree submit failed:");
    beta.submitBetaInfo("Corner Cafe", "mei@example.invalid");
    QVERIFY(finished.wait());

    QCOMPARE(finished.constFirst().constFirst().toBool(), false);
}

void tst_BetaService::aBlankEmailSendsNothing_data()
{
    QTest::addColumn<QString>("email");

    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << " \t  ";
}

void tst_BetaService::aBlankEmailSendsNothing()
{
    QFETCH(QString, email);
    const FormServer server("200 OK");
    BetaService beta;
    beta.setEndpoint(server.url());
    QSignalSpy finished(&beta, &BetaService::submitFinished);

    expectLog(QtInfoMsg, "BetaService: empty email, skipping submit");
    beta.submitBetaInfo("Corner Cafe", email);

    // At once, so that no request can be under way.
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.constFirst().constFirst().toBool(), false);
    QVERIFY(server.isUntouched());
    QVERIFY(!server.hasPendingConnections());
}

ZELVAN_TEST(tst_BetaService)
#include "tst_betaservice.moc"
