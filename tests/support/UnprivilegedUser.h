// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// Where the tests run as root, the process acts as nobody while the object lives, so that a
/// folder's permissions count. Elsewhere they count anyway; on Windows they are no modes, and the
/// tests that need some are named in NotHere.
class UnprivilegedUser final
{
public:
    UnprivilegedUser();
    ~UnprivilegedUser();
    Q_DISABLE_COPY_MOVE(UnprivilegedUser)

    /// Makes the file or folder that user's.
    static void own(const QString &path);
    static void setMode(const QString &path, int mode);
    /// What this process makes without another word, all accounts may read.
    static void letOthersRead();

private:
    bool m_isRoot;
};
