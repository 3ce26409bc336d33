// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The operating system's print spooler, reduced to raw jobs and the list of printers. Each
/// operation behaves as the Windows call of its name; other systems answer in the same way. Free of
/// Qt, because the Windows layer is compiled and tried without it.
class RawSpooler
{
public:
    /// An open printer; meaningless to the caller.
    using Handle = std::uintptr_t;

    struct PrinterInfo
    {
        std::u16string printerName;
        std::u16string portName;
    };

    RawSpooler() = default;
    RawSpooler(const RawSpooler &) = delete;
    RawSpooler &operator=(const RawSpooler &) = delete;
    virtual ~RawSpooler() = default;

    /// Sets `handle` on success; on failure getLastError tells why.
    virtual bool openPrinter(const std::u16string &printerName, Handle &handle) = 0;
    /// Begins one job of one document of the type "RAW"; answers its job id, 0 on failure.
    virtual std::uint32_t startDocPrinter(Handle handle, const std::u16string &documentName) = 0;
    virtual bool startPagePrinter(Handle handle) = 0;
    /// Hands the bytes on unchanged; `written` says how many were taken.
    virtual bool writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                              std::uint32_t &written) = 0;
    virtual bool endPagePrinter(Handle handle) = 0;
    virtual bool endDocPrinter(Handle handle) = 0;
    virtual bool closePrinter(Handle handle) = 0;

    /// Local printers and connections. A `size` of 0 asks only for the `needed` size of the buffer,
    /// 0 when there is no printer; a call with that size fills `printers` in the system's order.
    virtual bool enumPrinters(std::uint32_t size, std::uint32_t &needed,
                              std::vector<PrinterInfo> &printers) = 0;

    /// The system's code for the last operation that failed.
    [[nodiscard]] virtual std::uint32_t getLastError() const = 0;
};
