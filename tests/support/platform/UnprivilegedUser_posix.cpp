// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/UnprivilegedUser.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr uid_t nobody = 65534;
}

UnprivilegedUser::UnprivilegedUser()
    : m_isRoot(geteuid() == 0)
{
    if (m_isRoot && seteuid(nobody) != 0) {
        qFatal("cannot become an unprivileged user");
    }
}

UnprivilegedUser::~UnprivilegedUser()
{
    if (m_isRoot && seteuid(0) != 0) {
        qFatal("cannot become root again");
    }
}

void UnprivilegedUser::own(const QString &path)
{
    if (geteuid() == 0 && chown(QFile::encodeName(path).constData(), nobody, nobody) != 0) {
        qFatal("cannot give %s away", qPrintable(path));
    }
}

void UnprivilegedUser::letOthersRead()
{
    umask(022);
}

void UnprivilegedUser::setMode(const QString &path, int mode)
{
    if (chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(mode)) != 0) {
        qFatal("cannot set the mode of %s", qPrintable(path));
    }
}
