// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/RawSpooler.h"

#include <QString>

#include <map>
#include <memory>

class CupsConversation;
struct CupsLibrary;

/// CUPS behind the Windows calls: an open printer is a connection to the server, a document is one
/// raw job. Error codes are IPP status codes. A server from which no answer comes within two
/// seconds, whatever else it sends, is taken for one that does not run.
class CupsSpooler final : public RawSpooler
{
public:
    /// The library is looked for when it is first needed; without it every printer is refused like
    /// one of a server that does not run.
    explicit CupsSpooler(QString library = QStringLiteral("cups"));
    ~CupsSpooler() override;

    bool openPrinter(const std::u16string &printerName, Handle &handle) override;
    std::uint32_t startDocPrinter(Handle handle, const std::u16string &documentName) override;
    bool startPagePrinter(Handle handle) override;
    bool writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                      std::uint32_t &written) override;
    bool endPagePrinter(Handle handle) override;
    bool endDocPrinter(Handle handle) override;
    bool closePrinter(Handle handle) override;
    /// The size is counted in printers. When the server does not answer it is 1, so that the
    /// second call is made and reports the failure.
    bool enumPrinters(std::uint32_t size, std::uint32_t &needed,
                      std::vector<PrinterInfo> &printers) override;
    [[nodiscard]] std::uint32_t getLastError() const override;

private:
    class Document;

    [[nodiscard]] std::shared_ptr<const CupsLibrary> cups();
    [[nodiscard]] Document *document(Handle handle) const;
    bool listDestinations();
    bool noted(bool succeeded, const CupsConversation &conversation);

    QString m_library;
    std::shared_ptr<const CupsLibrary> m_cups;
    std::map<Handle, std::unique_ptr<Document>> m_documents;
    Handle m_lastHandle = 0;
    std::vector<PrinterInfo> m_destinations;
    bool m_listed = false;
    std::uint32_t m_lastError = 0;
};
