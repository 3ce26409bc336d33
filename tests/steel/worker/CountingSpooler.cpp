// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/worker/CountingSpooler.h"

bool CountingSpooler::openPrinter(const std::u16string & /*printerName*/, Handle &handle)
{
    handle = 1;
    return true;
}

std::uint32_t CountingSpooler::startDocPrinter(Handle /*handle*/,
                                               const std::u16string & /*documentName*/)
{
    return static_cast<std::uint32_t>(++m_documents);
}

bool CountingSpooler::startPagePrinter(Handle /*handle*/)
{
    return true;
}

bool CountingSpooler::writePrinter(Handle /*handle*/, const char * /*bytes*/, std::uint32_t count,
                                   std::uint32_t &written)
{
    m_bytes += count;
    written = count;
    return true;
}

bool CountingSpooler::endPagePrinter(Handle /*handle*/)
{
    return true;
}

bool CountingSpooler::endDocPrinter(Handle /*handle*/)
{
    return true;
}

bool CountingSpooler::closePrinter(Handle /*handle*/)
{
    return true;
}

bool CountingSpooler::enumPrinters(std::uint32_t /*size*/, std::uint32_t &needed,
                                   std::vector<PrinterInfo> &printers)
{
    needed = 0;
    printers.clear();
    return true;
}

std::uint32_t CountingSpooler::getLastError() const
{
    return 0;
}
