// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QVariant>

class RecordingSpooler;
class TestDatabase;
struct Services;

/// `TestDb` in the tests of the screens: the stored rows, and the paper in the printers.
class QmlTestStore final : public QObject
{
    Q_OBJECT

public:
    QmlTestStore(TestDatabase &file, Services &services, RecordingSpooler &spooler,
                 QObject *parent = nullptr);

    /// The first column of the first row, undefined when there is none.
    Q_INVOKABLE [[nodiscard]] QVariant value(const QString &sql) const;
    /// Every row as a map from column to value.
    Q_INVOKABLE [[nodiscard]] QVariantList rows(const QString &sql) const;
    Q_INVOKABLE void run(const QString &sql) const;
    /// The new row's id.
    Q_INVOKABLE int insert(const QString &sql) const;

    /// The store of the first run: no data, seeded settings, and services that know it.
    Q_INVOKABLE void reset();

    /// Lists one more printer from now on.
    Q_INVOKABLE void addPrinter(const QString &name) const;
    /// How many jobs the printers got since the program's start.
    Q_INVOKABLE [[nodiscard]] int printedDocuments() const;
    /// The bytes of the last job as Latin-1 text.
    Q_INVOKABLE [[nodiscard]] QString lastPrintedDocument() const;

    /// Announces a line of the level "critical", as ignoreWarning() does one of "warning".
    Q_INVOKABLE void expectCritical(const QString &pattern) const;

    /// Gives the field in focus a text that an input method is still composing.
    Q_INVOKABLE void compose(const QString &text) const;
    /// Hands it over what the input method made of it.
    Q_INVOKABLE void finishComposing(const QString &text) const;

    /// Has the screens made from now on speak to a screen reader.
    Q_INVOKABLE void startScreenReader() const;
    /// What a screen reader finds in the windows, parents before children: maps with `role`,
    /// `name`, `description`, `value`, `depth`, the states as booleans, and the `item` itself.
    Q_INVOKABLE [[nodiscard]] QVariantList accessibleTree() const;

    /// Every document of the screens, as the resource's path.
    Q_INVOKABLE [[nodiscard]] QStringList documents() const;

private:
    void refreshServices();

    TestDatabase &m_file;
    Services &m_services;
    RecordingSpooler &m_spooler;
};
