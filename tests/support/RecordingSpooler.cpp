// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/RecordingSpooler.h"

void RecordingSpooler::failAt(Step step, std::uint32_t code)
{
    m_failingStep = step;
    m_failureCode = code;
}

void RecordingSpooler::losePrinter(const QString &printerName)
{
    m_lostPrinters.insert(printerName);
}

void RecordingSpooler::takeAtMost(std::uint32_t bytes)
{
    m_mostBytes = bytes;
}

void RecordingSpooler::addPrinter(const QString &printerName, const QString &portName)
{
    m_printers.push_back({printerName.toStdU16String(), portName.toStdU16String()});
}

QStringList RecordingSpooler::calls() const
{
    return m_calls;
}

QList<RecordingSpooler::Document> RecordingSpooler::documents() const
{
    return m_documents;
}

QList<QByteArray> RecordingSpooler::documentsFor(const QString &printerName) const
{
    QList<QByteArray> found;
    for (const Document &document : m_documents) {
        if (document.printerName == printerName) {
            found.append(document.bytes);
        }
    }
    return found;
}

bool RecordingSpooler::openPrinter(const std::u16string &printerName, Handle &handle)
{
    const QString name = QString::fromStdU16String(printerName);
    m_calls.append(QStringLiteral("openPrinter \"%1\"").arg(name));
    if (m_lostPrinters.contains(name)) {
        m_lastError = invalidPrinterName;
        return false;
    }
    if (!passes(Step::OpenPrinter)) {
        return false;
    }
    m_open.append({name, {}, {}});
    handle = static_cast<Handle>(m_open.size());
    return true;
}

std::uint32_t RecordingSpooler::startDocPrinter(Handle handle, const std::u16string &documentName)
{
    const QString name = QString::fromStdU16String(documentName);
    m_calls.append(QStringLiteral("startDocPrinter %1 \"%2\"").arg(QString::number(handle), name));
    m_open[static_cast<qsizetype>(handle) - 1].documentName = name;
    return passes(Step::StartDocPrinter) ? static_cast<std::uint32_t>(100 + handle) : 0;
}

bool RecordingSpooler::startPagePrinter(Handle handle)
{
    m_calls.append(QStringLiteral("startPagePrinter %1").arg(handle));
    return passes(Step::StartPagePrinter);
}

bool RecordingSpooler::writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                                    std::uint32_t &written)
{
    m_calls.append(QStringLiteral("writePrinter %1 %2").arg(handle).arg(count));
    if (!passes(Step::WritePrinter)) {
        written = 0;
        return false;
    }
    written = qMin(count, m_mostBytes.value_or(count));
    Document document = m_open.at(static_cast<qsizetype>(handle) - 1);
    document.bytes = QByteArray(bytes, static_cast<qsizetype>(written));
    m_documents.append(document);
    return true;
}

bool RecordingSpooler::endPagePrinter(Handle handle)
{
    m_calls.append(QStringLiteral("endPagePrinter %1").arg(handle));
    return true;
}

bool RecordingSpooler::endDocPrinter(Handle handle)
{
    m_calls.append(QStringLiteral("endDocPrinter %1").arg(handle));
    return true;
}

bool RecordingSpooler::closePrinter(Handle handle)
{
    m_calls.append(QStringLiteral("closePrinter %1").arg(handle));
    return true;
}

bool RecordingSpooler::enumPrinters(std::uint32_t size, std::uint32_t &needed,
                                    std::vector<PrinterInfo> &printers)
{
    m_calls.append(QStringLiteral("enumPrinters %1").arg(size));
    needed = static_cast<std::uint32_t>(m_printers.size() * 100);
    if (size < needed) {
        m_lastError = 122;
        return false;
    }
    printers = m_printers;
    return passes(Step::EnumPrinters);
}

std::uint32_t RecordingSpooler::getLastError() const
{
    return m_lastError;
}

bool RecordingSpooler::passes(Step step)
{
    if (m_failingStep != step) {
        return true;
    }
    m_lastError = m_failureCode;
    return false;
}
