// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QtGlobal>

#include <unistd.h>

/// Where the tests run as root, the process acts as nobody while the object lives, so that a
/// folder's permissions count. Elsewhere they count anyway.
class UnprivilegedUser final
{
public:
    static constexpr uid_t id = 65534;

    UnprivilegedUser()
        : m_isRoot(geteuid() == 0)
    {
        if (m_isRoot && seteuid(id) != 0) {
            qFatal("cannot become an unprivileged user");
        }
    }
    ~UnprivilegedUser()
    {
        if (m_isRoot && seteuid(0) != 0) {
            qFatal("cannot become root again");
        }
    }
    Q_DISABLE_COPY_MOVE(UnprivilegedUser)

private:
    bool m_isRoot;
};
