// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "qml/QmlTestStore.h"

#include "core/Services.h"
#include "support/RecordingSpooler.h"
#include "support/TestDatabase.h"

#include <QAccessible>
#include <QDirIterator>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>
#include <QWindow>

namespace {

void addAccessible(QAccessibleInterface *node, int depth, QVariantList &found)
{
    if (!node || node->state().invisible)
        return;
    const QAccessible::State state = node->state();
    const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(node->role());
    found.append(QVariantMap{
        {QStringLiteral("role"), QString::fromLatin1(role)},
        {QStringLiteral("name"), node->text(QAccessible::Name)},
        {QStringLiteral("description"), node->text(QAccessible::Description)},
        {QStringLiteral("value"), node->text(QAccessible::Value)},
        {QStringLiteral("depth"), depth},
        {QStringLiteral("focusable"), bool(state.focusable)},
        {QStringLiteral("focused"), bool(state.focused)},
        {QStringLiteral("checkable"), bool(state.checkable)},
        {QStringLiteral("checked"), bool(state.checked)},
        {QStringLiteral("selectable"), bool(state.selectable)},
        {QStringLiteral("selected"), bool(state.selected)},
        {QStringLiteral("disabled"), bool(state.disabled)},
        {QStringLiteral("editable"), bool(state.editable)},
        {QStringLiteral("password"), bool(state.passwordEdit)},
        {QStringLiteral("item"), QVariant::fromValue(node->object())},
    });
    for (int child = 0; child < node->childCount(); ++child)
        addAccessible(node->child(child), depth + 1, found);
}

} // namespace

QmlTestStore::QmlTestStore(TestDatabase &file, Services &services, RecordingSpooler &spooler,
                           QObject *parent)
    : QObject(parent)
    , m_file(file)
    , m_services(services)
    , m_spooler(spooler)
{}

QVariant QmlTestStore::value(const QString &sql) const
{
    return m_file.value(sql);
}

QVariantList QmlTestStore::rows(const QString &sql) const
{
    QSqlQuery query(m_file.handle());
    if (!query.exec(sql)) {
        qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
    }
    QVariantList rows;
    while (query.next()) {
        QVariantMap row;
        const QSqlRecord record = query.record();
        for (int column = 0; column < record.count(); ++column) {
            row.insert(record.fieldName(column), record.value(column));
        }
        rows.append(row);
    }
    return rows;
}

void QmlTestStore::run(const QString &sql) const
{
    m_file.run(sql);
}

int QmlTestStore::insert(const QString &sql) const
{
    return m_file.insert(sql);
}

void QmlTestStore::reset()
{
    m_file.reset();
    refreshServices();
}

void QmlTestStore::addPrinter(const QString &name) const
{
    m_spooler.addPrinter(name, QStringLiteral("socket://127.0.0.1:9100"));
}

int QmlTestStore::printedDocuments() const
{
    return static_cast<int>(m_spooler.documents().size());
}

QString QmlTestStore::lastPrintedDocument() const
{
    const QList<RecordingSpooler::Document> documents = m_spooler.documents();
    return documents.isEmpty() ? QString() : QString::fromLatin1(documents.constLast().bytes);
}

void QmlTestStore::expectCritical(const QString &pattern) const
{
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(pattern));
}

void QmlTestStore::compose(const QString &text) const
{
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

void QmlTestStore::startScreenReader() const
{
    QAccessible::setActive(true);
}

QVariantList QmlTestStore::accessibleTree() const
{
    QVariantList found;
    const auto windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (window->isVisible())
            addAccessible(QAccessible::queryAccessibleInterface(window), 0, found);
    }
    return found;
}

void QmlTestStore::finishComposing(const QString &text) const
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

QStringList QmlTestStore::documents() const
{
    QStringList documents;
    QDirIterator it(QStringLiteral(":/qt/qml/zelvan/qml"), {QStringLiteral("*.qml")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        documents.append(it.next());
    }
    documents.sort();
    return documents;
}

/// What the services keep in memory, brought back to the file's state.
void QmlTestStore::refreshServices()
{
    m_services.menu.setCurrentCategoryId(-1);
    m_services.menu.categoryModel()->reload();
    m_services.tables.tableModel()->reload();
    m_services.users.userModel()->reload();
    m_services.floorPlan.loadCanvas(-1);
    m_services.floorPlan.loadFloors();
    m_services.members.loadMembers();
    m_services.members.loadTransactions(1);

    SettingService &settings = m_services.settings;
    settings.saveKitchenSettings(settings.getKitchenSettings());
    settings.saveMembershipSettings(settings.getMembershipSettings());
    settings.saveTableSettings(settings.getTableSettings());
    // Brings the currency back and leaves no row, as after the first run.
    settings.saveRegionalSettings({});
    m_file.run(QStringLiteral("DELETE FROM regional_settings"));
}
