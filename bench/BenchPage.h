// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "bench/FrameMeter.h"

#include <QQuickView>

#include <functional>

class QQuickItem;

/// One document of the screens in a window of its own, as large as a common screen.
class BenchPage final
{
public:
    /// `document` is its path below the folder of the screens.
    BenchPage(QQmlEngine &engine, const QString &document);

    [[nodiscard]] QQuickWindow &window() { return m_view; }
    [[nodiscard]] QQuickItem *root() const { return m_view.rootObject(); }
    /// What passes from the constructor until all that was asked of the page so far is on show.
    [[nodiscard]] QJsonObject open();

    /// The list that has so many rows. Ends the process where there is none.
    [[nodiscard]] QQuickItem *listOf(qsizetype rows) const;
    /// The item of the floor with that label. Ends the process where there is none.
    [[nodiscard]] QQuickItem *floorItem(const QString &label) const;

    /// Sends an event of the left button, or of the mouse that moves with it held down.
    void mouse(QEvent::Type type, const QPointF &place);

private:
    [[nodiscard]] QQuickItem *item(const std::function<bool(const QQuickItem *)> &fits) const;

    Stopwatch m_opening;
    QQuickView m_view;
};
