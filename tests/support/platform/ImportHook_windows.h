// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QtGlobal>

/// Has a loaded library call another function where it imports one of the system's, while the
/// object lives: a system that fails where it is told to.
class ImportHook final
{
public:
    using Function = void (*)();

    ImportHook(const wchar_t *library, const char *function, Function replacement);
    ~ImportHook();
    Q_DISABLE_COPY_MOVE(ImportHook)

private:
    void put(Function function) const;

    Function *m_slot = nullptr;
    Function m_own = nullptr;
};
