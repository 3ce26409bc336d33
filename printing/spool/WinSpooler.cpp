// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/WinSpooler.h"

#include <windows.h>
#include <winspool.h>

namespace {
constexpr DWORD localPrintersAndConnections = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
constexpr DWORD printerInfoLevel = 2;

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
    // 64-bit units, so that the records at the start of the buffer are aligned.
    std::vector<std::uint64_t> buffer((size + 7) / 8);
    auto *bytes = reinterpret_cast<BYTE *>(buffer.data());
    DWORD neededSize = 0;
    DWORD count = 0;
    const BOOL succeeded = EnumPrintersW(localPrintersAndConnections, nullptr, printerInfoLevel,
                                         size == 0 ? nullptr : bytes, size, &neededSize, &count);
    needed = neededSize;
    if (!noted(succeeded != 0)) {
        return false;
    }
    const auto *records = reinterpret_cast<const PRINTER_INFO_2W *>(bytes);
    for (DWORD i = 0; i < count; ++i) {
        printers.push_back({utf16(records[i].pPrinterName), utf16(records[i].pPortName)});
    }
    return true;
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
