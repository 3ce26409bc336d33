// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/GuiRendezvous.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <utility>

/// Rung from another thread, heard on the thread of its host, with which it goes. Qt's queue
/// carries nothing but the ringing: what is to be done lies behind the rendezvous' own lock.
class GuiRendezvous::Bell final : public QObject
{
public:
    Bell(GuiRendezvous &rendezvous, QObject *host)
        : QObject(host)
        , m_rendezvous(rendezvous.weak_from_this())
    {}

    void ring() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User) {
            return QObject::event(event);
        }
        // Kept until the work is done, which may close it.
        if (const std::shared_ptr<GuiRendezvous> rendezvous = m_rendezvous.lock()) {
            rendezvous->comeOnce();
        }
        return true;
    }

private:
    std::weak_ptr<GuiRendezvous> m_rendezvous;
};

std::shared_ptr<GuiRendezvous> GuiRendezvous::of(QObject *host)
{
    std::shared_ptr<GuiRendezvous> rendezvous(new GuiRendezvous);
    rendezvous->m_bell = new Bell(*rendezvous, host);
    return rendezvous;
}

bool GuiRendezvous::whileGuiStands(const std::function<void()> &work)
{
    const auto meeting = std::make_shared<Meeting>();
    std::unique_lock lock(m_mutex);
    if (!m_bell) {
        return false;
    }
    call([this, meeting] { stand(*meeting); });
    m_changed.wait(lock, [this, &meeting] { return meeting->guiHasCome || !m_bell; });
    if (!meeting->guiHasCome) {
        return false;
    }
    lock.unlock();
    work();
    lock.lock();
    meeting->over = true;
    m_changed.notify_all();
    return true;
}

void GuiRendezvous::post(std::function<void()> work)
{
    const std::lock_guard lock(m_mutex);
    if (m_bell) {
        call(std::move(work));
    }
}

void GuiRendezvous::close()
{
    const std::lock_guard lock(m_mutex);
    m_bell = nullptr;
    m_calls.clear();
    m_changed.notify_all();
}

void GuiRendezvous::call(std::function<void()> work)
{
    m_calls.push_back(std::move(work));
    m_bell->ring();
}

void GuiRendezvous::comeOnce()
{
    std::function<void()> work;
    {
        const std::lock_guard lock(m_mutex);
        if (m_calls.empty()) {
            return;
        }
        work = std::move(m_calls.front());
        m_calls.pop_front();
    }
    work();
}

void GuiRendezvous::stand(Meeting &meeting)
{
    std::unique_lock lock(m_mutex);
    if (!m_bell) {
        return;
    }
    meeting.guiHasCome = true;
    m_changed.notify_all();
    m_changed.wait(lock, [&meeting] { return meeting.over; });
}
