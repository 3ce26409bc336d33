// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// No file of this process grows past the size while the object lives: a disk that fills up.
class FileSizeLimit final
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_previousHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_previous);
        const rlimit limit{bytes, m_previous.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_previousHandler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_previous{};
    void (*m_previousHandler)(int);
};
