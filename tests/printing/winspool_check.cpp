// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
// Tries the Windows layer on a Windows, real or not: lists the printers, sends a file to one of
// them, and asks for a printer that does not exist. See scripts/check-winspool.
#include "printing/spool/WinSpooler.h"

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <winspool.h>

namespace {
bool isNetworkDead = false;

[[noreturn]] void fail(const char *step, const RawSpooler &spooler)
{
    std::printf("FAILED %s: code %lu\n", step, static_cast<unsigned long>(spooler.getLastError()));
    std::exit(1);
}

/// Names of this check are ASCII; anything else shows as "?".
std::string ascii(const std::u16string &text)
{
    std::string shown;
    for (const char16_t unit : text) {
        shown += unit < 128 ? static_cast<char>(unit) : '?';
    }
    return shown;
}

void list(RawSpooler &spooler, const std::u16string &wanted)
{
    std::uint32_t needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    spooler.enumPrinters(0, needed, printers);
    if (needed == 0 || !printers.empty()) {
        fail("enumPrinters without a buffer", spooler);
    }
    if (!spooler.enumPrinters(needed, needed, printers)) {
        fail("enumPrinters", spooler);
    }
    bool found = false;
    for (const RawSpooler::PrinterInfo &each : printers) {
        std::printf("printer \"%s\" port \"%s\"\n", ascii(each.printerName).c_str(),
                    ascii(each.portName).c_str());
        found = found || (each.printerName == wanted && !each.portName.empty());
    }
    if (!found) {
        fail("enumPrinters: the printer is not listed", spooler);
    }
}

void print(RawSpooler &spooler, const std::u16string &printer, const std::string &bytes)
{
    RawSpooler::Handle handle = 0;
    if (!spooler.openPrinter(printer, handle)) {
        fail("openPrinter", spooler);
    }
    if (spooler.startDocPrinter(handle, u"Zelvan Receipt/Kitchen Ticket") == 0) {
        fail("startDocPrinter", spooler);
    }
    if (!spooler.startPagePrinter(handle)) {
        fail("startPagePrinter", spooler);
    }
    const auto size = static_cast<std::uint32_t>(bytes.size());
    std::uint32_t written = 0;
    if (!spooler.writePrinter(handle, bytes.data(), size, written) || written != size) {
        fail("writePrinter", spooler);
    }
    if (!spooler.endPagePrinter(handle)) {
        fail("endPagePrinter", spooler);
    }
    if (!spooler.endDocPrinter(handle)) {
        fail("endDocPrinter", spooler);
    }
    if (!spooler.closePrinter(handle)) {
        fail("closePrinter", spooler);
    }
    std::printf("printed %lu bytes\n", static_cast<unsigned long>(written));
}

void askForAMissingPrinter(RawSpooler &spooler)
{
    RawSpooler::Handle handle = 0;
    if (spooler.openPrinter(u"No Such Printer", handle) || spooler.getLastError() == 0) {
        fail("openPrinter of a printer that does not exist must be refused with a code", spooler);
    }
    std::printf("missing printer refused with code %lu\n",
                static_cast<unsigned long>(spooler.getLastError()));
}

int askADeadNetwork()
{
    using namespace std::chrono;
    isNetworkDead = true;
    WinSpooler spooler;
    std::uint32_t needed = 1;
    std::vector<RawSpooler::PrinterInfo> printers;
    const auto begin = steady_clock::now();
    const bool listed = spooler.enumPrinters(0, needed, printers);
    const auto waited = duration_cast<milliseconds>(steady_clock::now() - begin);
    std::printf("a list that never comes: %s after %d ms\n", listed ? "there" : "none",
                static_cast<int>(waited.count()));
    const bool isBounded = waited < seconds(3) && spooler.getLastError() == ERROR_TIMEOUT;
    return !listed && needed == 0 && isBounded ? 0 : 1;
}

} // namespace

/// In the place of the call that the library stands for: the system's own, or one that does not
/// come back.
BOOL WINAPI EnumPrintersW(DWORD flags, LPWSTR name, DWORD level, LPBYTE buffer, DWORD size,
                          LPDWORD needed, LPDWORD count)
{
    if (isNetworkDead) {
        Sleep(INFINITE);
    }
    static auto *const own = reinterpret_cast<decltype(&EnumPrintersW)>(
        reinterpret_cast<void *>(GetProcAddress(LoadLibraryW(L"winspool.drv"), "EnumPrintersW")));
    return own(flags, name, level, buffer, size, needed, count);
}

/// "winspool_check PRINTER FILE" or "winspool_check --dead-network"
int main(int argc, char **argv)
{
    if (argc == 2 && std::string(argv[1]) == "--dead-network") {
        return askADeadNetwork();
    }
    if (argc != 3) {
        std::puts("winspool_check PRINTER FILE");
        return 2;
    }
    const std::string name(argv[1]);
    const std::u16string printer(name.begin(), name.end());
    std::ifstream file(argv[2], std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    WinSpooler spooler;
    list(spooler, printer);
    print(spooler, printer, bytes);
    askForAMissingPrinter(spooler);
    return 0;
}
