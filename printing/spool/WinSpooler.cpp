// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/WinSpooler.h"

#include "printing/spool/PatientThread.h"

#include <windows.h>

#include <chrono>
#include <memory>
#include <winspool.h>

namespace {
constexpr DWORD localPrintersAndConnections = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
constexpr DWORD printerInfoLevel = 2;
/// Connections to computers that are gone are asked for as long as the network likes.
constexpr std::chrono::milliseconds patience{1750};

std::wstring wide(const std::u16string &text)
{
    return std::wstring(text.begin(), text.end());
}

std::u16string utf16(const wchar_t *text)
{
    const std::wstring copy(text ? text : L"");
    return std::u16string(copy.begin(), copy.end());
}

HANDLE systemHandle(RawSpooler::Handle handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

/// What one call of EnumPrintersW answered.
struct List
{
    DWORD error = ERROR_SUCCESS;
    DWORD needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
};

List ask(DWORD size)
{
    List list;
    // 64-bit units, so that the records at the start of the buffer are aligned.
    std::vector<std::uint64_t> buffer((size + 7) / 8);
    auto *bytes = reinterpret_cast<BYTE *>(buffer.data());
    DWORD count = 0;
    if (EnumPrintersW(localPrintersAndConnections, nullptr, printerInfoLevel,
                      size == 0 ? nullptr : bytes, size, &list.needed, &count) == 0) {
        list.error = GetLastError();
        return list;
    }
    const auto *records = reinterpret_cast<const PRINTER_INFO_2W *>(bytes);
    for (DWORD i = 0; i < count; ++i) {
        list.printers.push_back({utf16(records[i].pPrinterName), utf16(records[i].pPortName)});
    }
    return list;
}
} // namespace

bool WinSpooler::openPrinter(const std::u16string &printerName, Handle &handle)
{
    std::wstring name = wide(printerName);
    HANDLE opened = nullptr;
    if (!noted(OpenPrinterW(name.data(), &opened, nullptr) != 0)) {
        return false;
    }
    handle = reinterpret_cast<Handle>(opened);
    return true;
}

std::uint32_t WinSpooler::startDocPrinter(Handle handle, const std::u16string &documentName)
{
    std::wstring name = wide(documentName);
    std::wstring type = L"RAW";
    DOC_INFO_1W document = {};
    document.pDocName = name.data();
    document.pDatatype = type.data();
    const DWORD job =
        StartDocPrinterW(systemHandle(handle), 1, reinterpret_cast<LPBYTE>(&document));
    noted(job != 0);
    return job;
}

bool WinSpooler::startPagePrinter(Handle handle)
{
    return noted(StartPagePrinter(systemHandle(handle)) != 0);
}

bool WinSpooler::writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                              std::uint32_t &written)
{
    DWORD taken = 0;
    // The call reads the bytes only, though its signature does not say so.
    const BOOL succeeded =
        WritePrinter(systemHandle(handle), const_cast<char *>(bytes), count, &taken);
    written = taken;
    return noted(succeeded != 0);
}

bool WinSpooler::endPagePrinter(Handle handle)
{
    return noted(EndPagePrinter(systemHandle(handle)) != 0);
}

bool WinSpooler::endDocPrinter(Handle handle)
{
    return noted(EndDocPrinter(systemHandle(handle)) != 0);
}

bool WinSpooler::closePrinter(Handle handle)
{
    return noted(ClosePrinter(systemHandle(handle)) != 0);
}

bool WinSpooler::enumPrinters(std::uint32_t size, std::uint32_t &needed,
                              std::vector<PrinterInfo> &printers)
{
    // Shared, for the call may come back after everybody has gone.
    const auto list = std::make_shared<List>();
    PatientThread thread;
    if (!thread.run([list, size] { *list = ask(size); }, patience)) {
        *list = List{ERROR_TIMEOUT, 0, {}};
    }
    needed = list->needed;
    printers.insert(printers.end(), list->printers.begin(), list->printers.end());
    if (list->error != ERROR_SUCCESS) {
        m_lastError = list->error;
    }
    return list->error == ERROR_SUCCESS;
}

std::uint32_t WinSpooler::getLastError() const
{
    return m_lastError;
}

/// Keeps the code at once, before any other call of the system can overwrite it.
bool WinSpooler::noted(bool succeeded)
{
    if (!succeeded) {
        m_lastError = GetLastError();
    }
    return succeeded;
}
