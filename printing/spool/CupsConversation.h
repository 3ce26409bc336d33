// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/CupsConnection.h"
#include "printing/spool/PatientThread.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

/// Exchanges with the server, made on a thread of their own: not every call of CUPS ends when its
/// time is over, so one that does not is left behind together with its connection.
class CupsConversation final
{
public:
    explicit CupsConversation(std::shared_ptr<const CupsLibrary> cups);
    ~CupsConversation();
    CupsConversation(const CupsConversation &) = delete;
    CupsConversation &operator=(const CupsConversation &) = delete;

    /// The exchange's answer, or an empty one where there was none in time. The exchange runs on
    /// the other thread, perhaps to a later end than the caller, so it holds copies of all it
    /// needs.
    template<typename Exchange>
    auto ask(Exchange exchange)
    {
        struct Outcome
        {
            std::invoke_result_t<Exchange, CupsConnection &> answer{};
            std::uint32_t refusal = 0;
        };
        const auto outcome = std::make_shared<Outcome>();
        const bool done =
            inTime([connection = m_connection, exchange = std::move(exchange), outcome] {
                if (connection->open()) {
                    outcome->answer = exchange(*connection);
                }
                outcome->refusal = connection->refusal();
            });
        m_refusal = done ? outcome->refusal : unavailable;
        return done ? std::move(outcome->answer) : decltype(outcome->answer){};
    }

    /// Why the last exchange failed, where it did: an IPP status.
    [[nodiscard]] std::uint32_t refusal() const { return m_refusal; }

private:
    static constexpr std::uint32_t unavailable = IPP_STATUS_ERROR_SERVICE_UNAVAILABLE;

    [[nodiscard]] bool inTime(std::function<void()> exchange);

    std::shared_ptr<CupsConnection> m_connection;
    PatientThread m_thread;
    std::uint32_t m_refusal = unavailable;
};
