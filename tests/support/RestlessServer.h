// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

/// A server on a port of 127.0.0.1 that never stops sending: something once, then something again
/// and again, whatever it is asked; where there is nothing to send again, it hangs up. It serves
/// one client after the other.
class RestlessServer final
{
public:
    RestlessServer(QByteArray once, QByteArray again, std::chrono::milliseconds pause);
    ~RestlessServer();
    RestlessServer(const RestlessServer &) = delete;
    RestlessServer &operator=(const RestlessServer &) = delete;

    [[nodiscard]] quint16 port() const { return m_port; }
    /// Whether a client that something was sent to again and again has gone.
    [[nodiscard]] bool isLeft() const { return m_left; }
    [[nodiscard]] int clients() const { return m_clients; }

private:
    void serve();
    void hangUpOn(int client);
    void flood(int client);

    QByteArray m_once;
    QByteArray m_again;
    std::chrono::milliseconds m_pause;
    int m_listening;
    quint16 m_port = 0;
    std::atomic<bool> m_left = false;
    std::atomic<bool> m_ending = false;
    std::atomic<int> m_clients = 0;
    std::vector<int> m_hungUp;
    std::thread m_thread;
};
