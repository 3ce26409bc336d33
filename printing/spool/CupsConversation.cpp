// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsConversation.h"

#include <chrono>

namespace {
using namespace std::chrono_literals;

/// Longer than the connection's own patience, which ends most waits in good order, and shorter than
/// the two seconds promised.
constexpr auto patience = 1750ms;
} // namespace

CupsConversation::CupsConversation(std::shared_ptr<const CupsLibrary> cups)
    : m_connection(std::make_shared<CupsConnection>(std::move(cups)))
{}

CupsConversation::~CupsConversation()
{
    // A connection is closed on the thread that has used it, and by whoever lets go of it last.
    static_cast<void>(inTime([connection = std::move(m_connection)] {}));
}

bool CupsConversation::inTime(std::function<void()> exchange)
{
    const std::weak_ptr<CupsConnection> connection = m_connection;
    if (m_thread.run(std::move(exchange), patience)) {
        return true;
    }
    if (const std::shared_ptr<CupsConnection> hanging = connection.lock()) {
        hanging->breakOff();
    }
    return false;
}
