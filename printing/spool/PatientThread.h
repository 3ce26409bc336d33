// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// A thread for calls that may never come back. It makes one after the other, and whoever asks
/// waits for each no longer than told. After one that did not come back in time it makes no more:
/// it is left to itself and ends when that call does.
class PatientThread final
{
public:
    PatientThread();
    /// Waits for nothing.
    ~PatientThread();
    PatientThread(const PatientThread &) = delete;
    PatientThread &operator=(const PatientThread &) = delete;

    /// False where the work was not done in time. It may then be done later, or never, and what it
    /// touches must be its own.
    [[nodiscard]] bool run(std::function<void()> work, std::chrono::milliseconds patience);

private:
    struct State;

    static void serve(const std::shared_ptr<State> &state);

    std::shared_ptr<State> m_state;
};
