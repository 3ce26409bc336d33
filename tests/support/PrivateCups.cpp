// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/PrivateCups.h"

#include <QDebug>
#include <QFile>
#include <QProcess>
#include <QTcpSocket>

#include <cups/cups.h>

#include <csignal>
#include <memory>

namespace {
constexpr int patienceMs = 20000;
}

PrivateCups::PrivateCups()
    // Not below the test's own temporary folder: the server's printers run as another user, who
    // could not walk in, and the path of a socket must be short.
    : m_folder(QStringLiteral("/tmp/zelvan-cups-XXXXXX"))
{
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                               QFile::ExeGroup | QFile::ExeOther);
}

PrivateCups::~PrivateCups()
{
    if (m_started) {
        static_cast<void>(run({QStringLiteral("stop"), folder()}));
    }
}

bool PrivateCups::start()
{
    m_started = run({QStringLiteral("start"), folder()});
    cupsSetServer(QFile::encodeName(folder() + QStringLiteral("/cups.sock")).constData());
    return m_started;
}

bool PrivateCups::addQueue(const QString &name, quint16 port)
{
    return run({QStringLiteral("add"), folder(), name, QString::number(port)});
}

bool PrivateCups::rejectJobs(const QString &queue)
{
    return run({QStringLiteral("reject"), folder(), queue});
}

void PrivateCups::signalServer(int number)
{
    QFile note(folder() + QStringLiteral("/cupsd.pid"));
    if (note.open(QFile::ReadOnly)) {
        ::kill(note.readAll().toInt(), number);
    }
}

bool PrivateCups::run(const QStringList &arguments)
{
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(QStringLiteral(ZELVAN_SOURCE_DIR "/tests/support/private_cups.py"), arguments);
    const bool succeeded = script.waitForFinished(2 * patienceMs) &&
                           script.exitStatus() == QProcess::NormalExit && script.exitCode() == 0;
    if (!succeeded) {
        qInfo().noquote() << "private_cups.py" << arguments << script.readAll();
    }
    return succeeded;
}

QString PrivateCups::folder() const
{
    return m_folder.filePath(QStringLiteral("cups"));
}

ThermalPrinter::ThermalPrinter()
{
    m_server.listen(QHostAddress::LocalHost);
}

quint16 ThermalPrinter::port() const
{
    return m_server.serverPort();
}

QByteArray ThermalPrinter::nextDocument()
{
    if (!m_server.waitForNewConnection(patienceMs)) {
        return {};
    }
    const std::unique_ptr<QTcpSocket> connection(m_server.nextPendingConnection());
    QByteArray document;
    while (connection->waitForReadyRead(patienceMs)) {
        document += connection->readAll();
    }
    return document;
}
