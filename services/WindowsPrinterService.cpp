// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/WindowsPrinterService.h"

#include "core/Logging.h"
#include "printing/EscPosBuilder.h"
#include "printing/PrintLayout.h"
#include "printing/spool/PlatformSpooler.h"

namespace {
const char16_t *const documentName = u"Zelvan Receipt/Kitchen Ticket";

QString roleLabel(const QString &role)
{
    if (role == QLatin1String("receipt")) {
        return QObject::tr("Receipt Printer");
    }
    if (role == QLatin1String("kitchen")) {
        return QObject::tr("Kitchen Printer");
    }
    if (role == QLatin1String("both")) {
        return QObject::tr("Receipt + Kitchen Printer");
    }
    return role;
}

QString cutLabel(const QString &cutMode)
{
    if (cutMode == QLatin1String("full")) {
        return QObject::tr("Full Cut");
    }
    if (cutMode == QLatin1String("partial")) {
        return QObject::tr("Partial Cut");
    }
    if (cutMode == QLatin1String("none")) {
        return QObject::tr("No Cut");
    }
    return cutMode;
}

void feed(EscPosBuilder &page, int lines)
{
    for (int i = 0; i < lines; ++i) {
        page.newline();
    }
}

void line(EscPosBuilder &page, const QString &text, int feeds = 1)
{
    page.text(text);
    feed(page, feeds);
}

void appendTitle(EscPosBuilder &page, int lineWidth)
{
    page.initialize();
    page.alignCenter();
    page.setBold(true);
    page.text(QObject::tr("PRINTER TEST"));
    page.setBold(false);
    feed(page, 2);
    line(page, PrintLayout::dashes(lineWidth), 2);
    page.alignLeft();
    feed(page, 1);
}

void appendSamples(EscPosBuilder &page)
{
    line(page, QStringLiteral("1234567890"));
    line(page, QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
    line(page, QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
    line(page, QStringLiteral("!@#$%^&*()_+-=[]{}|;':\",.<>/?"));
    feed(page, 1);
}
} // namespace

WindowsPrinterService::WindowsPrinterService(QObject *parent)
    : QObject(parent)
    , m_platformSpooler(platformSpooler())
    , m_spooler(m_platformSpooler.get())
{}

WindowsPrinterService::WindowsPrinterService(RawSpooler *spooler, QObject *parent)
    : QObject(parent)
    , m_spooler(spooler)
{}

WindowsPrinterService::~WindowsPrinterService() = default;

bool WindowsPrinterService::print(const QString &portName, const QByteArray &data)
{
    if (portName.isEmpty()) {
        qCWarning(lcPrinter) << "Print failed: empty printer name";
        return false;
    }
    RawSpooler::Handle printer = 0;
    if (!m_spooler->openPrinter(portName.toStdU16String(), printer)) {
        qCWarning(lcPrinter) << "Failed to open printer:" << portName
                             << "error:" << m_spooler->getLastError();
        return false;
    }
    if (m_spooler->startDocPrinter(printer, documentName) == 0) {
        qCWarning(lcPrinter) << "StartDocPrinter failed";
        m_spooler->closePrinter(printer);
        return false;
    }
    if (!m_spooler->startPagePrinter(printer)) {
        qCWarning(lcPrinter) << "StartPagePrinter failed";
        m_spooler->endDocPrinter(printer);
        m_spooler->closePrinter(printer);
        return false;
    }

    const auto size = static_cast<std::uint32_t>(data.size());
    std::uint32_t written = 0;
    const bool succeeded = m_spooler->writePrinter(printer, data.constData(), size, written);
    if (!succeeded || written != size) {
        qCWarning(lcPrinter) << "WritePrinter failed";
    }
    m_spooler->endPagePrinter(printer);
    m_spooler->endDocPrinter(printer);
    m_spooler->closePrinter(printer);
    // A short write is logged and still counts as printed: only the call's own answer decides.
    return succeeded;
}

QVariantList WindowsPrinterService::getAvailablePrinters()
{
    std::vector<RawSpooler::PrinterInfo> records;
    std::uint32_t needed = 0;
    // Asks for the size only; that this call "fails" for want of a buffer says nothing.
    m_spooler->enumPrinters(0, needed, records);
    if (needed == 0) {
        return {};
    }
    records.clear();
    if (!m_spooler->enumPrinters(needed, needed, records)) {
        qCWarning(lcPrinter) << "Failed to enumerate printers:" << m_spooler->getLastError();
        return {};
    }
    QVariantList printers;
    for (const RawSpooler::PrinterInfo &record : records) {
        printers.append(QVariantMap{
            {QStringLiteral("system_name"), QString::fromStdU16String(record.printerName)},
            {QStringLiteral("port"), QString::fromStdU16String(record.portName)}});
    }
    return printers;
}

bool WindowsPrinterService::testPrint(const QVariantMap &printerConfig)
{
    const QString systemName = printerConfig.value(QStringLiteral("system_name")).toString();
    const QString cutMode = printerConfig.value(QStringLiteral("cut_mode")).toString();
    const QString role = printerConfig.value(QStringLiteral("role")).toString();
    const int paperWidth = printerConfig.value(QStringLiteral("paper_width")).toInt();
    const int lineWidth = PrintLayout::lineWidth(paperWidth);

    EscPosBuilder page;
    appendTitle(page, lineWidth);
    line(page, QObject::tr("Printer: %1").arg(systemName));
    line(page, QObject::tr("Role: %1").arg(roleLabel(role)));
    // The raw setting: 0 stays 0 here, although the page is laid out for 58 mm then.
    line(page, QObject::tr("Paper Width: %1mm").arg(paperWidth));
    line(page, QObject::tr("Cut Mode: %1").arg(cutLabel(cutMode)), 2);
    line(page, PrintLayout::dashes(lineWidth), 2);
    page.alignCenter();
    appendSamples(page);
    page.cut(cutMode);
    feed(page, 2);
    return print(systemName, page.data());
}
