// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "printing/spool/RawSpooler.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

/// A print spooler of paper that lies in memory. It writes down every call, can fail at each step
/// with a code, take fewer bytes than it is given, and lose printers.
class RecordingSpooler final : public RawSpooler
{
public:
    enum class Step
    {
        OpenPrinter,
        StartDocPrinter,
        StartPagePrinter,
        WritePrinter,
        EnumPrinters,
    };

    struct Document
    {
        QString printerName;
        QString documentName;
        QByteArray bytes;
    };

    /// What a printer that has vanished is answered with.
    static constexpr std::uint32_t invalidPrinterName = 1801;

    /// Every call of this step is refused from now on.
    void failAt(Step step, std::uint32_t code = 5);
    /// This printer is refused at the open; all other names are taken.
    void losePrinter(const QString &printerName);
    /// A write answers success but takes no more than this.
    void takeAtMost(std::uint32_t bytes);
    void addPrinter(const QString &printerName, const QString &portName);

    /// One entry a call, as in `openPrinter "TM88"` or `writePrinter 1 12`, handles being numbered
    /// from 1.
    [[nodiscard]] QStringList calls() const;
    /// What has been printed, in order; a document counts once bytes were written.
    [[nodiscard]] QList<Document> documents() const;
    /// The bytes of each document for this printer.
    [[nodiscard]] QList<QByteArray> documentsFor(const QString &printerName) const;

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
    bool passes(Step step);

    QStringList m_calls;
    QList<Document> m_open;
    QList<Document> m_documents;
    QSet<QString> m_lostPrinters;
    std::optional<Step> m_failingStep;
    std::uint32_t m_failureCode = 0;
    std::optional<std::uint32_t> m_mostBytes;
    std::vector<PrinterInfo> m_printers;
    std::uint32_t m_lastError = 0;
};
