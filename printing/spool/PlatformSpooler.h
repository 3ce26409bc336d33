// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/RawSpooler.h"

#include <memory>

/// A new layer on this system's spooler: WINSPOOL on Windows, CUPS elsewhere. Contacts nothing
/// until it is used.
[[nodiscard]] std::unique_ptr<RawSpooler> platformSpooler();
