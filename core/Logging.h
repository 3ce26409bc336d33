// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QLoggingCategory>
#include <QString>

// One category a field of work, all levels on. Log texts are English and never translated.
const QLoggingCategory &lcApplication();
const QLoggingCategory &lcDatabase();
const QLoggingCategory &lcMigration();
const QLoggingCategory &lcSeeder();
const QLoggingCategory &lcCheckout();
const QLoggingCategory &lcMembership();
const QLoggingCategory &lcPrinter();
const QLoggingCategory &lcFloorPlan();
const QLoggingCategory &lcAuth();
const QLoggingCategory &lcOrder();
const QLoggingCategory &lcMenu();
const QLoggingCategory &lcReservation();
const QLoggingCategory &lcSettings();
const QLoggingCategory &lcSetup();

/// Opens the day's file, installs the message handler and purges old files. Called once, first of
/// all.
void initLogging();

/// Opens or reopens the file of the current local day, "logs/yyyy-MM-dd.log" in the application
/// data folder. A file that cannot be opened is not reported; lines still reach the standard error
/// stream.
void openLogFile();

/// Deletes files named by a date more than 30 days back. Other names are left alone.
void purgeOldLogs();

/// Writes "time [level] [category] message" to the day's file and to the standard error stream, and
/// flushes at once. Safe from any thread. A fatal message ends the process after it is written.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);
