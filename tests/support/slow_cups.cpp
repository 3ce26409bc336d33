// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include <cups/cups.h>

#include <chrono>
#include <thread>

/// CUPS, with a server whose name is looked up for longer than anybody waits, and not found.
extern "C" http_t *httpConnect2(const char *, int, http_addrlist_t *, int, http_encryption_t, int,
                                int, int *)
{
    std::this_thread::sleep_for(std::chrono::seconds(4));
    return nullptr;
}
