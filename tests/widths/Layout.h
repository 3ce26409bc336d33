// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QHash>
#include <QList>
#include <QRectF>
#include <QSet>
#include <QStringList>

#include <functional>

class QQuickItem;
class QQuickWindow;

/// Looks at what a window shows, as a person with a finger would: what is cut off, covered, out of
/// reach, or longer than is seen without a sign of it.
class Layout final
{
public:
    /// `names` are what people called things: these may be cut off behind their twelfth letter, and
    /// no other text may be.
    Layout(QQuickWindow *window, const QStringList &names);

    /// Every fault in the window as it stands. Pages that scroll are scrolled through with `settle`
    /// called after each step.
    [[nodiscard]] QStringList faults(const std::function<void()> &settle);

private:
    struct Shown
    {
        QQuickItem *item;
        /// In the window, and what ancestors leave of it.
        QRectF rect;
        QRectF seen;
    };

    void lookAt();
    void collect(QQuickItem *item, const QRectF &clip, const QQuickItem *control);
    void report(const QQuickItem *item, const QString &what);
    void checkPlace(const Shown &shown);
    void checkReach(const Shown &control);
    void checkText(const Shown &text);
    void checkInput(const QQuickItem *input);
    void checkScrolling(QQuickItem *flickable);
    void checkOverlaps();
    [[nodiscard]] int lettersShown(const QQuickItem *text, const QString &content) const;
    [[nodiscard]] QString nameIn(const QString &text) const;

    QQuickWindow *m_window;
    QStringList m_names;
    QList<Shown> m_controls;
    QList<Shown> m_texts;
    QList<Shown> m_scrollBars;
    QList<QQuickItem *> m_flickables;
    QSet<const QQuickItem *> m_met;
    QSet<const QQuickItem *> m_reached;
    QStringList m_faults;
};
