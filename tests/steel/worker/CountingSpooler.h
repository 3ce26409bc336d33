// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/RawSpooler.h"

/// A print spooler that takes every document and keeps its figures only, so that a day of paper
/// leaves nothing in memory.
class CountingSpooler final : public RawSpooler
{
public:
    [[nodiscard]] std::uint64_t documents() const { return m_documents; }
    [[nodiscard]] std::uint64_t bytes() const { return m_bytes; }

    bool openPrinter(const std::u16string &printerName, Handle &handle) override;
    std::uint32_t startDocPrinter(Handle handle, const std::u16string &documentName) override;
    bool startPagePrinter(Handle handle) override;
    bool writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                      std::uint32_t &written) override;
    bool endPagePrinter(Handle handle) override;
    bool endDocPrinter(Handle handle) override;
    bool closePrinter(Handle handle) override;
    bool enumPrinters(std::uint32_t size, std::uint32_t &needed,
                      std::vector<PrinterInfo> &printers) override;
    [[nodiscard]] std::uint32_t getLastError() const override;

private:
    std::uint64_t m_documents = 0;
    std::uint64_t m_bytes = 0;
};
