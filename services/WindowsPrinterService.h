// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <memory>

class RawSpooler;

/// The only door to the printers: finished bytes go to the operating system's spooler as raw jobs.
/// Every call blocks until the spooler has taken the bytes or refused; nobody waits for the paper.
class WindowsPrinterService final : public QObject
{
    Q_OBJECT

public:
    /// Speaks to this system's own spooler.
    explicit WindowsPrinterService(QObject *parent = nullptr);
    /// Speaks to the given layer, which is not owned.
    explicit WindowsPrinterService(RawSpooler *spooler, QObject *parent = nullptr);
    ~WindowsPrinterService() override;

    /// Sends one document as one job. `portName` is a printer's system name, in spite of its name.
    /// False when the name is empty or the spooler refuses, with a log line each; a short write is
    /// logged but counts as printed.
    Q_INVOKABLE bool print(const QString &portName, const QByteArray &data);

    /// Maps with `system_name` and `port`, in the system's order, virtual printers included; empty
    /// on failure.
    Q_INVOKABLE QVariantList getAvailablePrinters();

    /// Prints a page about the printer's own settings: `system_name`, `cut_mode`, `role`,
    /// `paper_width`. Answers what `print` answers.
    Q_INVOKABLE bool testPrint(const QVariantMap &printerConfig);

private:
    std::unique_ptr<RawSpooler> m_platformSpooler;
    RawSpooler *m_spooler;
};
