// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QList>

class PlainDatabase;
struct Services;

/// What is measured beside the plain C interface: one thing a user does.
struct Operation
{
    const char *name;
    /// Brings a generated file into the state the operation starts from.
    void (*prepare)(PlainDatabase &file);
    /// Once after the services stand and before the first round; not measured.
    void (*begin)(Services &services);
    /// False where the operation did not do what it should. Rounds count from 0.
    bool (*run)(Services &services, int round);
};

/// No operation may be run more often than this on one file.
constexpr int maximumRounds = 30;

[[nodiscard]] const QList<Operation> &operations();
