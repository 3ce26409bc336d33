// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "widths/Layout.h"

#include "widths/Items.h"

#include <QFont>
#include <QFontMetricsF>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

using namespace Items;

namespace {
constexpr int lettersOfAName = 12;
} // namespace

Layout::Layout(QQuickWindow *window, const QStringList &names)
    : m_window(window)
    , m_names(names)
{}

QStringList Layout::faults(const std::function<void()> &settle)
{
    lookAt();
    const QList<QQuickItem *> flickables = m_flickables;
    for (QQuickItem *flickable : flickables) {
        if (flickable->inherits("QQuickItemView")) {
            continue;
        }
        const qreal start = flickable->property("contentY").toReal();
        const qreal end = flickable->property("contentHeight").toReal() - flickable->height();
        for (qreal y = start; y < end - slack;) {
            y = std::min(end, y + flickable->height() * 0.7);
            flickable->setProperty("contentY", y);
            settle();
            lookAt();
        }
        flickable->setProperty("contentY", start);
        settle();
    }
    for (const QQuickItem *item : std::as_const(m_met)) {
        if (!m_reached.contains(item)) {
            report(item, u"is never seen whole"_s);
        }
    }
    m_faults.removeDuplicates();
    return m_faults;
}

void Layout::report(const QQuickItem *item, const QString &what)
{
    m_faults.append(describe(item) + u' ' + what);
}

void Layout::lookAt()
{
    m_controls.clear();
    m_texts.clear();
    m_scrollBars.clear();
    m_flickables.clear();

    // A modal dialog takes the place of everything below it.
    QQuickItem *root = m_window->contentItem();
    for (QQuickItem *child : m_window->contentItem()->childItems()) {
        if (!child->inherits("QQuickOverlay") || !child->isVisible()) {
            continue;
        }
        for (QQuickItem *popup : child->childItems()) {
            if (popup->inherits("QQuickPopupItem") && popup->isVisible()) {
                root = popup;
            }
        }
    }
    collect(root, QRectF(QPointF(), QSizeF(m_window->size())), nullptr);

    for (const Shown &control : std::as_const(m_controls)) {
        checkPlace(control);
        checkReach(control);
    }
    for (const Shown &text : std::as_const(m_texts)) {
        checkPlace(text);
        checkText(text);
    }
    for (QQuickItem *flickable : std::as_const(m_flickables)) {
        checkScrolling(flickable);
    }
    checkOverlaps();
}

void Layout::collect(QQuickItem *item, const QRectF &clip, const QQuickItem *control)
{
    if (!item->isVisible() || item->opacity() < 0.05 || isDrawn(item) ||
        item->inherits("QQuickOverlay")) {
        return;
    }
    const QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    QRectF inner = clip;
    // A button's text belongs into the button, a dialog's contents into the dialog.
    if (item->clip() || item->inherits("QQuickAbstractButton") ||
        item->inherits("QQuickPopupItem")) {
        inner &= rect;
    }
    if (item->inherits("QQuickScrollBar")) {
        if (item->property("size").toReal() < 1 && item->property("policy").toInt() != 1) {
            m_scrollBars.append({item, rect, rect & clip});
        }
        return;
    }
    const bool planOfAFloor = item->inherits("QQuickMouseArea") && item->width() > 1500;
    if (isControl(item) && control == nullptr && !planOfAFloor) {
        m_controls.append({item, rect, rect & clip});
        control = item;
    }
    if (item->inherits("QQuickTextInput")) {
        checkInput(item);
    }
    if (item->inherits("QQuickTumbler")) {
        return; // its columns fade out at their ends
    }
    if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty()) {
        const QRectF letters = lettersOf(item);
        m_texts.append({item, letters, letters & clip});
    }
    if (item->inherits("QQuickFlickable")) {
        m_flickables.append(item);
    }
    // The rows of a list are those it knows by number: others lie there to be used again.
    const QQuickItem *view = item->parentItem();
    const bool ofAList = view != nullptr && view->inherits("QQuickItemView") &&
                         view->property("contentItem").value<QQuickItem *>() == item;
    const QList<QQuickItem *> children = ofAList ? rowsOf(view) : item->childItems();
    for (QQuickItem *child : children) {
        collect(child, inner, control);
    }
}

void Layout::checkPlace(const Shown &shown)
{
    const bool overLeft = shown.seen.isValid() && shown.rect.left() < shown.seen.left() - slack;
    const bool overRight = shown.seen.isValid() && shown.rect.right() > shown.seen.right() + slack;
    const bool sideways = shown.seen.height() > slack && (overLeft || overRight);
    const bool beside = shown.rect.left() > m_window->width() - slack || shown.rect.right() < slack;
    // What a list of floors or a plan scrolls sideways to is reached that way.
    const QQuickItem *scroller = ancestorOf(shown.item, "QQuickFlickable");
    const bool scrolled = scroller != nullptr &&
                          scroller->property("contentWidth").toReal() > scroller->width() + slack;
    if ((sideways || beside) && !scrolled) {
        report(shown.item, u"is cut off at its side or lies beside the window"_s);
    }
    const QQuickItem *view = ancestorOf(shown.item, "QQuickItemView");
    if (view == nullptr && !scrolled) {
        m_met.insert(shown.item);
    }
    if (shown.seen.height() > shown.rect.height() - slack) {
        m_reached.insert(shown.item);
    }
}

void Layout::checkReach(const Shown &control)
{
    if (control.seen.height() < control.rect.height() - slack ||
        control.seen.width() < control.rect.width() - slack) {
        return;
    }
    const QPointF centre = control.rect.center();
    QQuickItem *hit = m_window->contentItem();
    while (QQuickItem *child = topmostChild(hit, centre)) {
        hit = child;
    }
    const QQuickItem *row = isArea(control.item) ? control.item->parentItem() : control.item;
    if (!isAncestor(row, hit)) {
        report(control.item, u"is not what its centre answers, which is "_s + describe(hit));
    }
}

QString Layout::nameIn(const QString &text) const
{
    for (const QString &name : m_names) {
        if (text.contains(name)) {
            return name;
        }
    }
    return {};
}

int Layout::lettersShown(const QQuickItem *text, const QString &content) const
{
    QFont font = text->property("font").value<QFont>();
    // A text that is made to fit and is still cut off is at its smallest.
    if (text->property("fontSizeMode").toInt() != 0) {
        font.setPixelSize(text->property("minimumPixelSize").toInt());
    }
    const QFontMetricsF metrics(font);
    const int lines = std::max(1, text->property("lineCount").toInt());
    // Words that go to the next line leave some of their line empty.
    const qreal room = lines == 1 ? text->width() : text->width() * lines * 0.8;
    int letters = 0;
    while (letters < content.size() &&
           metrics.horizontalAdvance(content.left(letters + 1) + u'…') <= room + 0.5) {
        ++letters;
    }
    return letters;
}

void Layout::checkText(const Shown &text)
{
    if (!text.item->property("truncated").toBool()) {
        return;
    }
    const QString content = text.item->property("text").toString();
    // A hint in an empty field is enough with its beginning.
    const bool hint = text.item->inherits("QQuickPlaceholderText");
    const QString name = hint ? content : nameIn(content);
    if (name.isEmpty()) {
        if (!content.contains(u'/')) { // the middle of a path may be left out
            report(text.item, u"is cut off"_s);
        }
        return;
    }
    const int letters = lettersShown(text.item, content) - int(content.indexOf(name));
    if (letters < std::min<int>(lettersOfAName, int(name.size()))) {
        report(text.item, u"shows %1 letters of its name"_s.arg(letters));
    }
}

void Layout::checkInput(const QQuickItem *input)
{
    const QString text = input->property("text").toString();
    const qreal room = input->width() - input->property("leftPadding").toReal() -
                       input->property("rightPadding").toReal();
    const QQuickItem *parent = input->parentItem();
    const bool ofAChoice = parent != nullptr && (parent->inherits("QQuickComboBox") ||
                                                 parent->inherits("QQuickSpinBox"));
    if (ofAChoice && input->property("contentWidth").toReal() > room + slack) {
        report(parent, u"cuts off its text"_s);
    }
    // What is typed in scrolls; half of what a list shows is enough to see where one is.
    const QString name = nameIn(text);
    const QFontMetricsF metrics(input->property("font").value<QFont>());
    if (!ofAChoice && !name.isEmpty() &&
        metrics.horizontalAdvance(name.left(lettersOfAName / 2)) > room + slack) {
        report(input, u"has no room for the beginning of its name"_s);
    }
}

void Layout::checkScrolling(QQuickItem *flickable)
{
    if (ancestorOf(flickable, "QQuickTumbler") != nullptr) {
        return;
    }
    const auto hasBar = [this, flickable](Qt::Orientation orientation) {
        return std::any_of(m_scrollBars.cbegin(), m_scrollBars.cend(), [&](const Shown &bar) {
            const auto *handle = bar.item->property("contentItem").value<QQuickItem *>();
            return bar.item->property("orientation").toInt() == orientation &&
                   bar.item->opacity() > 0.9 && handle->opacity() > 0.9 && bar.seen.width() > 3 &&
                   bar.seen.height() > 3 &&
                   (bar.item->parentItem() == flickable ||
                    isAncestor(bar.item->parentItem(), flickable));
        });
    };
    const auto longer = [flickable](const char *content, qreal seen) {
        return flickable->property(content).toReal() > seen + slack;
    };
    if (longer("contentHeight", flickable->height()) && flickable->height() > 1 &&
        !hasBar(Qt::Vertical)) {
        report(flickable, u"holds more than is seen and shows no scroll bar"_s);
    }
    if (longer("contentWidth", flickable->width()) && !hasBar(Qt::Horizontal)) {
        report(flickable, u"is wider than is seen and shows no scroll bar"_s);
    }
}

void Layout::checkOverlaps()
{
    QList<Shown> solid;
    for (const Shown &control : std::as_const(m_controls)) {
        if (!isArea(control.item)) {
            solid.append(control);
        }
    }
    const qsizetype controls = solid.size();
    solid.append(m_scrollBars);
    const qsizetype boxes = solid.size();
    solid.append(m_texts);
    for (qsizetype i = 0; i < solid.size(); ++i) {
        for (qsizetype j = i + 1; j < solid.size(); ++j) {
            const bool bars = i >= controls && j < boxes;
            if (!bars && overlap(solid[i].seen, solid[j].seen) &&
                !isAncestor(solid[i].item, solid[j].item) &&
                !isAncestor(solid[j].item, solid[i].item)) {
                report(solid[i].item, u"overlaps "_s + describe(solid[j].item));
            }
        }
    }
}
