// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/platform/ImportHook_windows.h"

#include <qt_windows.h>

#include <cstring>

namespace {
template<typename Type>
Type *at(HMODULE library, DWORD offset)
{
    return reinterpret_cast<Type *>(reinterpret_cast<BYTE *>(library) + offset);
}

/// Where the library keeps the address of the function that it imports.
ImportHook::Function *slotOf(HMODULE library, const char *function)
{
    const auto *head = at<IMAGE_DOS_HEADER>(library, 0);
    const auto *image = at<IMAGE_NT_HEADERS>(library, static_cast<DWORD>(head->e_lfanew));
    const DWORD imports =
        image->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto *from = at<IMAGE_IMPORT_DESCRIPTOR>(library, imports); from->Name != 0; ++from) {
        const auto *name = at<IMAGE_THUNK_DATA>(library, from->OriginalFirstThunk);
        auto *slot = at<IMAGE_THUNK_DATA>(library, from->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot) {
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal) &&
                std::strcmp(
                    at<IMAGE_IMPORT_BY_NAME>(library, static_cast<DWORD>(name->u1.AddressOfData))
                        ->Name,
                    function) == 0) {
                return reinterpret_cast<ImportHook::Function *>(&slot->u1.Function);
            }
        }
    }
    return nullptr;
}
} // namespace

ImportHook::ImportHook(const wchar_t *library, const char *function, Function replacement)
{
    const HMODULE module = GetModuleHandleW(library);
    m_slot = module == nullptr ? nullptr : slotOf(module, function);
    if (m_slot == nullptr) {
        qFatal("%ls does not import %s", library, function);
    }
    m_own = *m_slot;
    put(replacement);
}

ImportHook::~ImportHook()
{
    put(m_own);
}

void ImportHook::put(Function function) const
{
    DWORD protection = 0;
    VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &protection);
    *m_slot = function;
    VirtualProtect(m_slot, sizeof *m_slot, protection, &protection);
}
