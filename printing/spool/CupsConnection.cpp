// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsConnection.h"

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

CupsConnection::CupsConnection(const CupsLibrary *cups)
    : m_cups(cups)
    , m_deadline(Clock::now() + patience)
{
    if (!m_cups) {
        return;
    }
    m_cups->cupsSetPasswordCB2(noPassword, nullptr);
    m_http = m_cups->httpConnect2(m_cups->cupsServer(), m_cups->ippPort(), nullptr, AF_UNSPEC,
                                  m_cups->cupsEncryption(), 1, static_cast<int>(patience.count()),
                                  nullptr);
    if (m_http) {
        m_cups->httpSetTimeout(m_http, secondsBetweenLooks, &CupsConnection::keepsWaiting, this);
    }
}

CupsConnection::~CupsConnection()
{
    if (m_http) {
        m_cups->httpClose(m_http);
    }
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

bool CupsConnection::isSuccess(ipp_status_t status)
{
    return status >= IPP_STATUS_OK && status <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

int CupsConnection::keepsWaiting(http_t *, void *self)
{
    return Clock::now() < static_cast<CupsConnection *>(self)->m_deadline ? 1 : 0;
}
