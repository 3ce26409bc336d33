// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsLibrary.h"

#include "core/Logging.h"

#include <QLibrary>

namespace {
/// The version of its interface, which the name of the library's file ends with.
constexpr int interfaceVersion = 2;

template<typename Call>
bool resolve(QLibrary &library, Call &call, const char *name)
{
    call = reinterpret_cast<Call>(library.resolve(name));
    return call != nullptr;
}
} // namespace

std::unique_ptr<const CupsLibrary> CupsLibrary::load(const QString &name)
{
    QLibrary library(name, interfaceVersion);
    auto calls = std::make_unique<CupsLibrary>();
#define ZELVAN_CUPS_RESOLVE(name) &&resolve(library, calls->name, #name)
    if (!(library.load() ZELVAN_CUPS_CALLS(ZELVAN_CUPS_RESOLVE))) {
        qCWarning(lcPrinter) << "CUPS cannot be loaded:" << library.errorString();
        return nullptr;
    }
#undef ZELVAN_CUPS_RESOLVE
    return calls;
}
