// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/CupsLibrary.h"

#include <chrono>
#include <cstdint>

/// A connection that is given up when the server has shown no sign of life for as long as patience
/// lasts. Nothing more is asked of it then, so that the wait is paid once.
class CupsConnection final
{
public:
    /// Without the library it is one to a server that does not run.
    explicit CupsConnection(const CupsLibrary *cups);
    ~CupsConnection();
    CupsConnection(const CupsConnection &) = delete;
    CupsConnection &operator=(const CupsConnection &) = delete;

    /// Both may be used while it is alive.
    [[nodiscard]] const CupsLibrary &cups() const { return *m_cups; }
    [[nodiscard]] http_t *http() const { return m_http; }
    [[nodiscard]] bool alive() const;

    /// Passes the outcome of an exchange on; any answer in time is a sign of life.
    bool answered(bool succeeded);
    /// Why CUPS refused, an IPP status: never one of success, nor one left over from an earlier
    /// exchange.
    [[nodiscard]] std::uint32_t refusal() const;

    [[nodiscard]] static bool isSuccess(ipp_status_t status);

private:
    using Clock = std::chrono::steady_clock;

    static int keepsWaiting(http_t *http, void *self);

    const CupsLibrary *m_cups;
    Clock::time_point m_deadline;
    http_t *m_http = nullptr;
};
