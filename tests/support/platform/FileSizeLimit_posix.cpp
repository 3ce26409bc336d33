// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FileSizeLimit.h"

#include <csignal>
#include <sys/resource.h>

struct FileSizeLimit::Previous
{
    rlimit limit{};
    void (*handler)(int) = nullptr;
};

FileSizeLimit::FileSizeLimit(qint64 bytes)
    : m_previous(std::make_unique<Previous>())
{
    m_previous->handler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_previous->limit);
    const rlimit limit{static_cast<rlim_t>(bytes), m_previous->limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &m_previous->limit);
    std::signal(SIGXFSZ, m_previous->handler);
}

QString FileSizeLimit::reason()
{
    return QStringLiteral("File too large");
}
