// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <cups/cups.h>

#include <memory>

class QString;

#define ZELVAN_CUPS_CALLS(CALL)                                                                    \
    CALL(cupsEncryption)                                                                           \
    CALL(cupsFinishDocument)                                                                       \
    CALL(cupsGetResponse)                                                                          \
    CALL(cupsLastError)                                                                            \
    CALL(cupsSendRequest)                                                                          \
    CALL(cupsServer)                                                                               \
    CALL(cupsSetPasswordCB2)                                                                       \
    CALL(cupsSetUser)                                                                              \
    CALL(cupsStartDocument)                                                                        \
    CALL(cupsUser)                                                                                 \
    CALL(cupsWriteRequestData)                                                                     \
    CALL(httpAssembleURIf)                                                                         \
    CALL(httpClose)                                                                                \
    CALL(httpConnect2)                                                                             \
    CALL(httpError)                                                                                \
    CALL(httpGetFd)                                                                                \
    CALL(httpGetStatus)                                                                            \
    CALL(httpSetTimeout)                                                                           \
    CALL(ippAddInteger)                                                                            \
    CALL(ippAddString)                                                                             \
    CALL(ippAddStrings)                                                                            \
    CALL(ippDelete)                                                                                \
    CALL(ippFindAttribute)                                                                         \
    CALL(ippFirstAttribute)                                                                        \
    CALL(ippGetInteger)                                                                            \
    CALL(ippGetName)                                                                               \
    CALL(ippGetString)                                                                             \
    CALL(ippLength)                                                                                \
    CALL(ippNewRequest)                                                                            \
    CALL(ippNextAttribute)                                                                         \
    CALL(ippPort)

/// The calls of CUPS under their own names. The library is loaded when printers are first asked for
/// and not linked, because it brings a dozen others, and the start of the till would wait for them.
struct CupsLibrary final
{
#define ZELVAN_CUPS_POINTER(name) decltype(&::name) name = nullptr;
    ZELVAN_CUPS_CALLS(ZELVAN_CUPS_POINTER)
#undef ZELVAN_CUPS_POINTER

    /// Stays loaded to the end. Null, with the reason in the log, where there is no such library or
    /// it lacks a call.
    static std::unique_ptr<const CupsLibrary> load(const QString &name);
};
