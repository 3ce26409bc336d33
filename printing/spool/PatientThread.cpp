// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/PatientThread.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

struct PatientThread::State
{
    std::mutex mutex;
    std::condition_variable changed;
    /// Empty while there is nothing to do.
    std::function<void()> work;
    bool done = false;
    bool left = false;
};

PatientThread::PatientThread()
    : m_state(std::make_shared<State>())
{
    std::thread(&PatientThread::serve, m_state).detach();
}

PatientThread::~PatientThread()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->left = true;
    m_state->changed.notify_all();
}

bool PatientThread::run(std::function<void()> work, std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_state->mutex);
    if (m_state->left) {
        return false;
    }
    m_state->work = std::move(work);
    m_state->done = false;
    m_state->changed.notify_all();
    m_state->left = !m_state->changed.wait_for(lock, patience, [this] { return m_state->done; });
    return m_state->done;
}

void PatientThread::serve(const std::shared_ptr<State> &state)
{
    std::unique_lock lock(state->mutex);
    for (;;) {
        state->changed.wait(lock, [&state] { return state->work || state->left; });
        if (!state->work) {
            return;
        }
        std::function<void()> work = std::exchange(state->work, nullptr);
        lock.unlock();
        work();
        // What the work holds goes on this thread and before anybody is told.
        work = nullptr;
        lock.lock();
        state->done = true;
        state->changed.notify_all();
    }
}
