// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/RawSpooler.h"

/// WINSPOOL, call for call.
class WinSpooler final : public RawSpooler
{
public:
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
    bool noted(bool succeeded);

    std::uint32_t m_lastError = 0;
};
