// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/RestlessServer.h"

#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
bool sendAll(int client, const QByteArray &bytes)
{
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t now = ::send(client, bytes.constData() + sent,
                                   static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (now <= 0) {
            return false;
        }
        sent += now;
    }
    return true;
}

enum class Client
{
    TakesMore,
    IsBusy,
    HasLeft,
};

/// One that leaves without having read all that was sent is not told of by `send`, which would wait
/// for room for a minute.
Client stateOf(int client)
{
    constexpr int patienceMs = 100;
    pollfd place{client, POLLOUT | POLLRDHUP, 0};
    if (::poll(&place, 1, patienceMs) == 0) {
        return Client::IsBusy;
    }
    return place.revents == POLLOUT ? Client::TakesMore : Client::HasLeft;
}
} // namespace

RestlessServer::RestlessServer(QByteArray once, QByteArray again, std::chrono::milliseconds pause)
    : m_once(std::move(once))
    , m_again(std::move(again))
    , m_pause(pause)
    , m_listening(::socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    if (::bind(m_listening, reinterpret_cast<sockaddr *>(&address), size) != 0 ||
        ::listen(m_listening, 1) != 0 ||
        ::getsockname(m_listening, reinterpret_cast<sockaddr *>(&address), &size) != 0) {
        qFatal("no port for the server");
    }
    m_port = ntohs(address.sin_port);
    m_thread = std::thread(&RestlessServer::serve, this);
}

RestlessServer::~RestlessServer()
{
    m_ending = true;
    ::shutdown(m_listening, SHUT_RDWR);
    m_thread.join();
    ::close(m_listening);
    for (const int client : m_hungUp) {
        ::close(client);
    }
}

void RestlessServer::serve()
{
    for (;;) {
        const int client = ::accept(m_listening, nullptr, nullptr);
        if (client < 0) {
            return;
        }
        ++m_clients;
        if (m_again.isEmpty()) {
            hangUpOn(client);
        } else {
            flood(client);
        }
    }
}

void RestlessServer::hangUpOn(int client)
{
    sendAll(client, m_once);
    ::shutdown(client, SHUT_WR);
    // Closed now, what it has not read yet would take the answer away from it.
    m_hungUp.push_back(client);
}

void RestlessServer::flood(int client)
{
    bool there = sendAll(client, m_once);
    while (there && !m_ending) {
        const Client state = stateOf(client);
        there = state != Client::HasLeft && (state == Client::IsBusy || sendAll(client, m_again));
        std::this_thread::sleep_for(m_pause);
    }
    ::close(client);
    m_left = !there;
}
