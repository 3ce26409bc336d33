// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "widths/Items.h"

#include <QQmlProperty>
#include <QQuickItem>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Items {
bool isControl(const QQuickItem *item)
{
    for (const char *type : {"QQuickAbstractButton", "QQuickTextInput", "QQuickTextEdit",
                             "QQuickComboBox", "QQuickSpinBox", "QQuickTumbler"}) {
        if (item->inherits(type)) {
            return true;
        }
    }
    // An area that takes clicks of the left button.
    return item->inherits("QQuickMouseArea") && item->isEnabled() &&
           (item->acceptedMouseButtons() & Qt::LeftButton) != 0;
}

bool isArea(const QQuickItem *item)
{
    return item->inherits("QQuickMouseArea");
}

bool isAncestor(const QQuickItem *ancestor, const QQuickItem *item)
{
    for (; item != nullptr; item = item->parentItem()) {
        if (item == ancestor) {
            return true;
        }
    }
    return false;
}

QQuickItem *ancestorOf(QQuickItem *item, const char *type)
{
    while (item != nullptr && !item->inherits(type)) {
        item = item->parentItem();
    }
    return item;
}

QRectF lettersOf(const QQuickItem *text)
{
    const QSizeF size(text->property("contentWidth").toReal(),
                      text->property("contentHeight").toReal());
    const int horizontal = text->property("effectiveHorizontalAlignment").toInt();
    const int vertical = text->property("verticalAlignment").toInt();
    qreal x = text->property("leftPadding").toReal();
    if ((horizontal & Qt::AlignRight) != 0) {
        x = text->width() - size.width();
    } else if ((horizontal & Qt::AlignHCenter) != 0) {
        x = (text->width() - size.width()) / 2;
    }
    qreal y = text->property("topPadding").toReal();
    if ((vertical & Qt::AlignBottom) != 0) {
        y = text->height() - size.height();
    } else if ((vertical & Qt::AlignVCenter) != 0) {
        y = (text->height() - size.height()) / 2;
    }
    return text->mapRectToScene(QRectF(QPointF(x, y), size));
}

bool letsThrough(const QQuickItem *item)
{
    const QByteArray type = item->metaObject()->className();
    return (item->inherits("QQuickMouseArea") && !item->property("enabled").toBool()) ||
           type.startsWith("FocusRing") || type.startsWith("RowRing");
}

QQuickItem *topmostChild(const QQuickItem *item, QPointF place)
{
    QList<QQuickItem *> children = item->childItems();
    std::stable_sort(children.begin(), children.end(),
                     [](const auto *a, const auto *b) { return a->z() < b->z(); });
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if ((*child)->isVisible() && !letsThrough(*child) &&
            (*child)->contains((*child)->mapFromScene(place))) {
            return *child;
        }
    }
    return nullptr;
}

QList<QQuickItem *> rowsOf(const QQuickItem *list)
{
    QList<QQuickItem *> rows;
    for (int i = 0; i < list->property("count").toInt(); ++i) {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(const_cast<QQuickItem *>(list), "itemAtIndex",
                                  Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, i));
        if (row != nullptr) {
            rows.append(row);
        }
    }
    return rows;
}

bool overlap(const QRectF &a, const QRectF &b)
{
    const QRectF common = a & b;
    return common.width() > slack && common.height() > slack;
}

bool isDrawn(const QQuickItem *item)
{
    return qstrncmp(item->metaObject()->className(), "FloorItem", 9) == 0;
}

QString describe(const QQuickItem *item)
{
    QString type = QString::fromLatin1(item->metaObject()->className()).section(u'_', 0, 0);
    for (const char *property : {"text", "displayText", "placeholderText"}) {
        const QString text = item->property(property).toString();
        if (!text.isEmpty()) {
            return type + u" \""_s + text + u'"';
        }
    }
    const QString name =
        QQmlProperty(const_cast<QQuickItem *>(item), u"Accessible.name"_s, qmlContext(item))
            .read()
            .toString();
    const QQuickItem *parent = item->parentItem();
    if (name.isEmpty() && parent != nullptr) {
        type +=
            u" in "_s + QString::fromLatin1(parent->metaObject()->className()).section(u'_', 0, 0);
    }
    return type + (name.isEmpty() ? QString() : u" \""_s + name + u'"');
}
} // namespace Items
