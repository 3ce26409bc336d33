// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "widths/Stage.h"

#include "core/MainWindow.h"

#include <QCoreApplication>
#include <QQmlContext>
#include <QQmlError>
#include <QQmlExpression>
#include <QQmlIncubationController>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
/// The first object of the tree that the document of that name declares itself.
QObject *declaredBy(const QString &fileName, QObject *object)
{
    const QQmlContext *context = QQmlEngine::contextForObject(object);
    if (context != nullptr && context->baseUrl().path().endsWith(fileName)) {
        return object;
    }
    const auto *item = qobject_cast<QQuickItem *>(object);
    if (item != nullptr) {
        for (QQuickItem *child : item->childItems()) {
            if (QObject *found = child->isVisible() ? declaredBy(fileName, child) : nullptr) {
                return found;
            }
        }
    }
    for (QObject *child : object->children()) {
        if (qobject_cast<QQuickItem *>(child) == nullptr) {
            if (QObject *found = declaredBy(fileName, child)) {
                return found;
            }
        }
    }
    return nullptr;
}
} // namespace

Stage::Stage()
{
    if (!loadMainWindow(m_engine)) {
        qFatal("the window does not load");
    }
    m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().constFirst());
    if (!QTest::qWaitForWindowExposed(m_window)) {
        qFatal("the window does not show");
    }
}

void Stage::show(const QString &screen, const QString &properties)
{
    const QString script =
        u"stackView.clear(StackView.Immediate);"
        u"stackView.push('qrc:/qt/qml/zelvan/qml/%1.qml', %2, StackView.Immediate)"_s.arg(
            screen, properties);
    const QString fault = run(u"Main"_s, script);
    if (!fault.isEmpty()) {
        qFatal("%s", qPrintable(fault));
    }
}

QObject *Stage::objectOf(const QString &document) const
{
    const QString fileName = u'/' + document + u".qml"_s;
    return declaredBy(fileName, document == "Main"_L1 ? static_cast<QObject *>(m_window)
                                                      : m_window->contentItem());
}

QString Stage::run(const QString &document, const QString &script)
{
    QObject *object = objectOf(document);
    if (object == nullptr) {
        return document + u" is not on show"_s;
    }
    QQmlExpression expression(QQmlEngine::contextForObject(object), object, script);
    expression.evaluate();
    if (expression.hasError()) {
        return document + u": "_s + script + u": "_s + expression.error().description();
    }
    settle();
    return {};
}

void Stage::resize(QSize size)
{
    m_window->resize(size);
    settle();
}

void Stage::settle()
{
    const auto rests = [this] {
        if (m_engine.incubationController()->incubatingObjectCount() > 0) {
            return false;
        }
        const QList<QObject *> objects = m_window->findChildren<QObject *>();
        return std::none_of(objects.cbegin(), objects.cend(), [](const QObject *object) {
            return object->property("busy").toBool() ||
                   (object->inherits("QQuickPopup") && object->property("visible").toBool() &&
                    !object->property("opened").toBool());
        });
    };
    // A frame lays out what has changed; what that changed in turn comes with the next.
    for (int frame = 0; frame < 3; ++frame) {
        if (!QTest::qWaitFor(rests, 20000)) {
            qFatal("a popup or a page does not come to rest");
        }
        bool drawn = false;
        const auto watch = QObject::connect(m_window, &QQuickWindow::frameSwapped, m_window,
                                            [&] { drawn = true; });
        m_window->update();
        const bool done = QTest::qWaitFor([&] { return drawn; }, 20000);
        QObject::disconnect(watch);
        if (!done) {
            qFatal("the window draws no frame");
        }
    }
}
