// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/BenchPage.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>

namespace {
QQuickItem *find(QQuickItem *item, const std::function<bool(const QQuickItem *)> &fits)
{
    if (fits(item)) {
        return item;
    }
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = find(child, fits)) {
            return found;
        }
    }
    return nullptr;
}
} // namespace

BenchPage::BenchPage(QQmlEngine &engine, const QString &document)
    : m_view(&engine, nullptr)
{
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.resize(1920, 1080);
    m_view.setSource(QUrl(QLatin1String("qrc:/qt/qml/zelvan/qml/") + document));
    if (m_view.status() != QQuickView::Ready) {
        qFatal("cannot load %s", qPrintable(document));
    }
    m_view.show();
}

QJsonObject BenchPage::open()
{
    static_cast<void>(measureFrames(m_view, 1, [](int) {}));
    return m_opening.toJson();
}

QQuickItem *BenchPage::listOf(qsizetype rows) const
{
    return item([rows](const QQuickItem *item) {
        return item->inherits("QQuickListView") && item->property("count").toInt() == rows;
    });
}

QQuickItem *BenchPage::floorItem(const QString &label) const
{
    return item([&label](const QQuickItem *item) {
        return item->property("tableType").isValid() && item->property("label") == label;
    });
}

void BenchPage::mouse(QEvent::Type type, const QPointF &place)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, place, m_view.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_view, &event);
}

QQuickItem *BenchPage::item(const std::function<bool(const QQuickItem *)> &fits) const
{
    QQuickItem *found = find(root(), fits);
    if (found == nullptr) {
        qFatal("%s does not show what is measured", qPrintable(m_view.source().fileName()));
    }
    return found;
}
