// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/PlatformSpooler.h"

#ifdef _WIN32
#include "printing/spool/WinSpooler.h"
using SystemSpooler = WinSpooler;
#else
#include "printing/spool/CupsSpooler.h"
using SystemSpooler = CupsSpooler;
#endif

std::unique_ptr<RawSpooler> platformSpooler()
{
    return std::make_unique<SystemSpooler>();
}
