// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "support/ZelvanTest.h"

#include <QSqlDatabase>
#include <QVariantList>

#include <optional>

/// What every repository of a table with one row promises. SettingsRowTestOf says of which one.
class SettingsRowTest : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anEmptyTableYieldsNothing();
    void aSavedRowIsReadBackWhole();
    void aSecondSaveReplacesTheFirst();
    void theRowIsNumberOneWhateverTheRecordSays();
    void savingMovesNoTimeStamp();
    void everyFailureIsLogged();

protected:
    /// The table's name and the whole log lines of the two failures, as logOf tells them.
    struct Table
    {
        QString name;
        QString failedSave;
        QString failedFetch;
    };
    /// Two records that differ in every field.
    enum class Sample
    {
        First,
        Second
    };

    explicit SettingsRowTest(const Table &table)
        : m_table(table)
    {}

    virtual void save(const QSqlDatabase &database, Sample sample, int id) const = 0;
    /// The fields without the id.
    [[nodiscard]] virtual QVariantList fieldsOf(Sample sample) const = 0;
    /// The id and the fields of the row; empty when there is none.
    [[nodiscard]] virtual QVariantList fetched(const QSqlDatabase &database) const = 0;

private:
    Table m_table;
};

/// The test of one such repository: its class names the record's fields other than the id and gives
/// two records to its constructor.
template<typename Repository, typename Record, auto... Fields>
class SettingsRowTestOf : public SettingsRowTest
{
protected:
    SettingsRowTestOf(const Table &table, const Record &first, const Record &second)
        : SettingsRowTest(table)
        , m_first(first)
        , m_second(second)
    {}

private:
    void save(const QSqlDatabase &database, Sample sample, int id) const override
    {
        Record record = recordOf(sample);
        record.id = id;
        Repository(database).save(record);
    }

    [[nodiscard]] QVariantList fieldsOf(Sample sample) const override
    {
        return fields(recordOf(sample));
    }

    [[nodiscard]] QVariantList fetched(const QSqlDatabase &database) const override
    {
        const std::optional<Record> record = fetch(database);
        return record ? QVariantList{record->id} + fields(*record) : QVariantList();
    }

    [[nodiscard]] static std::optional<Record> fetch(const QSqlDatabase &database)
    {
        Repository repository(database);
        if constexpr (requires { repository.fetch(); }) {
            return repository.fetch();
        } else {
            return repository.get();
        }
    }

    [[nodiscard]] const Record &recordOf(Sample sample) const
    {
        return sample == Sample::First ? m_first : m_second;
    }

    [[nodiscard]] static QVariantList fields(const Record &record)
    {
        return {asVariant(record.*Fields)...};
    }

    template<typename Value>
    [[nodiscard]] static QVariant asVariant(const Value &value)
    {
        return value;
    }

    [[nodiscard]] static QVariant asVariant(const std::optional<QString> &value)
    {
        return value ? QVariant(*value) : QVariant();
    }

    Record m_first;
    Record m_second;
};
