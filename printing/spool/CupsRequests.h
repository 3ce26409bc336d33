// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/RawSpooler.h"

#include <optional>
#include <string>
#include <vector>

class CupsConnection;

/// The exchanges with the server, each on a connection that is alive.
namespace CupsRequests {
/// All queues with their devices, in the server's order; absent on failure.
std::optional<std::vector<RawSpooler::PrinterInfo>> queues(CupsConnection &connection);
bool queueExists(CupsConnection &connection, const std::string &queue);
/// The new job's number; 0 on failure.
int createJob(CupsConnection &connection, const std::string &queue, const std::string &title);
bool startDocument(CupsConnection &connection, const std::string &queue, int job,
                   const std::string &title);
bool sendDocument(CupsConnection &connection, const std::string &bytes);
bool finishDocument(CupsConnection &connection, const std::string &queue);
bool cancelJob(CupsConnection &connection, const std::string &queue, int job);
} // namespace CupsRequests
