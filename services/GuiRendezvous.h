// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

class QObject;

/// Where another thread meets the thread of an object, the GUI thread, to do what must not overlap
/// with anything done there: the GUI thread comes when its event loop is free, and stands still
/// until the other has done.
///
/// The two share it. The object closes it before it goes, and whoever waits then is sent away.
/// A GUI thread that waits for the other by any other means would wait for ever.
class GuiRendezvous final : public std::enable_shared_from_this<GuiRendezvous>
{
public:
    [[nodiscard]] static std::shared_ptr<GuiRendezvous> of(QObject *host);
    GuiRendezvous(const GuiRendezvous &) = delete;
    GuiRendezvous &operator=(const GuiRendezvous &) = delete;

    /// On the other thread: does the work here while the GUI thread stands still, and the object is
    /// there. False, and nothing is done, once it is closed.
    [[nodiscard]] bool whileGuiStands(const std::function<void()> &work);
    /// On any thread: has the work done on the GUI thread later, unless it is closed by then.
    void post(std::function<void()> work);

    /// On the GUI thread, for good.
    void close();

private:
    class Bell;
    struct Meeting
    {
        bool guiHasCome = false;
        bool over = false;
    };

    GuiRendezvous() = default;
    /// With the lock held, and not once closed.
    void call(std::function<void()> work);
    /// On the GUI thread: does the call that is due for longest.
    void comeOnce();
    void stand(Meeting &meeting);

    // Not Qt's: these are seen by the tools that look for races.
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_calls;
    /// Null once closed.
    Bell *m_bell = nullptr;
};
