// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/GuiRendezvous.h"

#include <QMetaObject>
#include <QObject>

std::shared_ptr<GuiRendezvous> GuiRendezvous::of(QObject *host)
{
    return std::shared_ptr<GuiRendezvous>(new GuiRendezvous(host));
}

bool GuiRendezvous::whileGuiStands(const std::function<void()> &work)
{
    const auto meeting = std::make_shared<Meeting>();
    std::unique_lock lock(m_mutex);
    if (!m_host) {
        return false;
    }
    QMetaObject::invokeMethod(
        m_host, [self = shared_from_this(), meeting] { self->stand(*meeting); },
        Qt::QueuedConnection);
    m_changed.wait(lock, [this, &meeting] { return meeting->guiHasCome || !m_host; });
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
    if (m_host) {
        QMetaObject::invokeMethod(m_host, std::move(work), Qt::QueuedConnection);
    }
}

void GuiRendezvous::close()
{
    const std::lock_guard lock(m_mutex);
    m_host = nullptr;
    m_changed.notify_all();
}

GuiRendezvous::GuiRendezvous(QObject *host)
    : m_host(host)
{}

void GuiRendezvous::stand(Meeting &meeting)
{
    std::unique_lock lock(m_mutex);
    if (!m_host) {
        return;
    }
    meeting.guiHasCome = true;
    m_changed.notify_all();
    m_changed.wait(lock, [&meeting] { return meeting.over; });
}
