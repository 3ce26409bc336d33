// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/CupsLibrary.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

/// A connection that is given up when the server has shown no sign of life for as long as patience
/// lasts. Nothing more is asked of it then, so that the wait is paid once.
///
/// It is used on one thread, from the first `open` to its end: CUPS keeps its errors by thread.
class CupsConnection final
{
public:
    /// Remembers the server that the calling thread speaks to. Without the library it is one that
    /// does not run.
    explicit CupsConnection(std::shared_ptr<const CupsLibrary> cups);
    ~CupsConnection();
    CupsConnection(const CupsConnection &) = delete;
    CupsConnection &operator=(const CupsConnection &) = delete;

    /// Connects on first use; whether it is alive.
    bool open();

    /// All may be used while it is alive.
    [[nodiscard]] const CupsLibrary &cups() const { return *m_cups; }
    [[nodiscard]] http_t *http() const { return m_http; }
    [[nodiscard]] const char *user() const { return m_user.c_str(); }
    [[nodiscard]] bool alive() const;

    /// Passes the outcome of an exchange on; any answer in time is a sign of life.
    bool answered(bool succeeded);
    /// Why CUPS refused, an IPP status: never one of success, nor one left over from an earlier
    /// exchange.
    [[nodiscard]] std::uint32_t refusal() const;

    /// On any thread: ends a call that does not end by itself, because the server goes on sending.
    void breakOff();

    [[nodiscard]] static bool isSuccess(ipp_status_t status);

private:
    using Clock = std::chrono::steady_clock;

    static int keepsWaiting(http_t *http, void *self);
    void connect();

    std::shared_ptr<const CupsLibrary> m_cups;
    std::string m_server;
    int m_port = 0;
    http_encryption_t m_encryption = HTTP_ENCRYPTION_IF_REQUESTED;
    std::string m_user;
    bool m_tried = false;
    Clock::time_point m_deadline;
    http_t *m_http = nullptr;

    std::mutex m_mutex;
    /// The connection's socket under a number of our own, which nobody else closes; -1 for none.
    int m_socket = -1;
    bool m_brokenOff = false;
};
