// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <thread>

/// A server on a port of 127.0.0.1 that never stops sending: something once, then something again
/// and again, whatever it is asked. It serves one client and ends when that one has gone.
class RestlessServer final
{
public:
    RestlessServer(QByteArray once, QByteArray again, std::chrono::milliseconds pause);
    ~RestlessServer();
    RestlessServer(const RestlessServer &) = delete;
    RestlessServer &operator=(const RestlessServer &) = delete;

    [[nodiscard]] quint16 port() const { return m_port; }
    /// Whether the client has come and gone.
    [[nodiscard]] bool isLeft() const { return m_left; }

private:
    void serve();

    QByteArray m_once;
    QByteArray m_again;
    std::chrono::milliseconds m_pause;
    int m_listening;
    quint16 m_port = 0;
    std::atomic<bool> m_left = false;
    std::thread m_thread;
};
