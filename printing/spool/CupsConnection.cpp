// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsConnection.h"

#include <utility>

#include <sys/socket.h>
#include <unistd.h>

namespace {
using namespace std::chrono_literals;

/// Shorter than the two seconds promised, so that the log line falls inside them.
constexpr auto patience = 1500ms;
constexpr double secondsBetweenLooks = 0.1;

/// Nobody sits at a terminal to type a password; without this CUPS would wait for one.
const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}
} // namespace

CupsConnection::CupsConnection(std::shared_ptr<const CupsLibrary> cups)
    : m_cups(std::move(cups))
{
    if (m_cups) {
        // CUPS keeps these by thread, too.
        m_server = m_cups->cupsServer();
        m_port = m_cups->ippPort();
        m_encryption = m_cups->cupsEncryption();
        m_user = m_cups->cupsUser();
    }
}

CupsConnection::~CupsConnection()
{
    if (m_http) {
        m_cups->httpClose(m_http);
    }
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

bool CupsConnection::open()
{
    if (!std::exchange(m_tried, true) && m_cups) {
        connect();
    }
    return alive();
}

bool CupsConnection::alive() const
{
    return m_http && Clock::now() < m_deadline;
}

bool CupsConnection::answered(bool succeeded)
{
    if (!succeeded && m_cups->httpError(m_http) != 0) {
        m_deadline = Clock::now();
    } else if (alive()) {
        m_deadline = Clock::now() + patience;
    }
    return succeeded;
}

std::uint32_t CupsConnection::refusal() const
{
    if (!alive()) {
        return IPP_STATUS_ERROR_SERVICE_UNAVAILABLE;
    }
    const ipp_status_t status = m_cups->cupsLastError();
    return static_cast<std::uint32_t>(isSuccess(status) ? IPP_STATUS_ERROR_INTERNAL : status);
}

void CupsConnection::breakOff()
{
    const std::lock_guard lock(m_mutex);
    m_brokenOff = true;
    if (m_socket >= 0) {
        ::shutdown(m_socket, SHUT_RDWR);
    }
}

bool CupsConnection::isSuccess(ipp_status_t status)
{
    return status >= IPP_STATUS_OK && status <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

int CupsConnection::keepsWaiting(http_t *, void *self)
{
    return Clock::now() < static_cast<CupsConnection *>(self)->m_deadline ? 1 : 0;
}

void CupsConnection::connect()
{
    m_deadline = Clock::now() + patience;
    m_cups->cupsSetUser(m_user.c_str());
    m_cups->cupsSetPasswordCB2(noPassword, nullptr);
    m_http = m_cups->httpConnect2(m_server.c_str(), m_port, nullptr, AF_UNSPEC, m_encryption, 1,
                                  static_cast<int>(std::chrono::milliseconds(patience).count()),
                                  nullptr);
    if (!m_http) {
        return;
    }
    m_cups->httpSetTimeout(m_http, secondsBetweenLooks, &CupsConnection::keepsWaiting, this);
    const std::lock_guard lock(m_mutex);
    m_socket = ::dup(m_cups->httpGetFd(m_http));
    if (m_brokenOff) {
        m_deadline = Clock::now();
    }
}
