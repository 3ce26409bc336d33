// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>
#include <QTcpServer>
#include <QTemporaryDir>

/// A CUPS server of the test's own, from private_cups.py, for as long as the object lives. The
/// calls of this process go to it.
class PrivateCups final
{
public:
    PrivateCups();
    ~PrivateCups();
    Q_DISABLE_COPY_MOVE(PrivateCups)

    /// False, with the reason in the test's output, when the server did not come up.
    [[nodiscard]] bool start();
    /// A raw queue for a printer on this port of 127.0.0.1.
    [[nodiscard]] bool addQueue(const QString &name, quint16 port);
    /// The queue takes no more jobs.
    [[nodiscard]] bool rejectJobs(const QString &queue);
    /// Sends the server a signal, as in SIGKILL.
    void signalServer(int number);

private:
    [[nodiscard]] bool run(const QStringList &arguments);
    [[nodiscard]] QString folder() const;

    QTemporaryDir m_folder;
    bool m_started = false;
};

/// A thermal printer on a port of 127.0.0.1.
class ThermalPrinter final
{
public:
    ThermalPrinter();

    [[nodiscard]] quint16 port() const;
    /// Waits for the next document and answers its bytes; empty when none came within 20 seconds.
    [[nodiscard]] QByteArray nextDocument();

private:
    QTcpServer m_server;
};
