// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/UnprivilegedUser.h"

namespace {
constexpr auto notHere = "Windows has no modes of files: the test is to be named in NotHere";
}

UnprivilegedUser::UnprivilegedUser()
    : m_isRoot(false)
{
    qFatal("%s", notHere);
}

UnprivilegedUser::~UnprivilegedUser() = default;

void UnprivilegedUser::own(const QString & /*path*/)
{
    qFatal("%s", notHere);
}

void UnprivilegedUser::letOthersRead()
{
    qFatal("%s", notHere);
}

void UnprivilegedUser::setMode(const QString & /*path*/, int /*mode*/)
{
    qFatal("%s", notHere);
}
