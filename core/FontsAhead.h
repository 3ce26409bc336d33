// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QFontDatabase>
#include <QStringList>

#include <thread>
#include <tuple>

/// Has the system's fonts listed while the program reads its settings and its screens: the first
/// text waits for that list, and it is the longest single thing that a start waits for. Qt guards
/// the list by a lock of its own; whoever comes first makes it. Windows keeps its list ready. Lives
/// in `main` once the application stands.
class FontsAhead final
{
public:
    FontsAhead()
    {
#ifndef Q_OS_WIN
        m_thread = std::thread([] { std::ignore = QFontDatabase::families(); });
#endif
    }
    ~FontsAhead()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }
    Q_DISABLE_COPY_MOVE(FontsAhead)

private:
    std::thread m_thread;
};
