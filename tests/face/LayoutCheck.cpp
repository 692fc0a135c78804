// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/LayoutCheck.h"

#include "face/TextRegions.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QFocusFrame>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

QString told(const QRect &rect)
{
    return u"%1×%2 at %3, %4"_s.arg(rect.width()).arg(rect.height()).arg(rect.x()).arg(rect.y());
}

QString told(const QSize &size)
{
    return u"%1×%2"_s.arg(size.width()).arg(size.height());
}

QString told(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const QString name = !widget.accessibleName().isEmpty() ? widget.accessibleName()
                         : label != nullptr                 ? label->text()
                                                            : widget.objectName();
    return u"%1 “%2”"_s.arg(QString::fromLatin1(widget.metaObject()->className()), name);
}

bool fits(const QSize &needed, const QSize &room)
{
    return needed.width() <= room.width() && needed.height() <= room.height();
}

QStringList textFindings(const QWidget &widget)
{
    QStringList findings;
    const auto regions = textRegions(widget);
    for (const TextRegion &region : regions) {
        if (region.needed.isEmpty() || fits(region.needed, region.room.size())) {
            continue;
        }
        if (!region.mayBeCut || region.needed.height() > region.room.height()) {
            findings.append(u"%1: “%2” needs %3 and has %4"_s.arg(
                told(widget), region.text, told(region.needed), told(region.room.size())));
        } else if (!region.toolTip.contains(region.text)) {
            findings.append(u"%1: “%2” is cut and its tool tip is “%3”"_s.arg(
                told(widget), region.text, region.toolTip));
        }
    }
    return findings;
}

/// What Qt makes for its own use is as it is.
bool isOurs(const QWidget &widget)
{
    return qobject_cast<const QFocusFrame *>(&widget) == nullptr &&
           qobject_cast<const QScrollBar *>(&widget) == nullptr &&
           !widget.objectName().startsWith(u"qt_"_s);
}

/// Its size is chosen by whoever clicks it; a picture has no words to lose.
bool isPicture(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button != nullptr && !button->icon().isNull() && textRegions(widget).isEmpty();
}

QStringList sizeFindings(const QWidget &widget)
{
    const QSize least = widget.minimumSizeHint();
    const bool isTooNarrow = widget.width() < least.width();
    // A layout of texts that wrap knows its least height only with a width.
    const bool growsWithWidth = widget.layout() != nullptr && widget.layout()->hasHeightForWidth();
    const int height = growsWithWidth ? widget.layout()->totalMinimumHeightForWidth(widget.width())
                                      : least.height();
    const bool scrolls = qobject_cast<const QAbstractScrollArea *>(&widget) != nullptr;
    if (!scrolls && isOurs(widget) && !isPicture(widget) &&
        (isTooNarrow || widget.height() < height)) {
        return {u"%1 is %2 and takes %3×%4 at least"_s.arg(told(widget), told(widget.size()))
                .arg(least.width())
                .arg(height)};
    }
    return {};
}

bool isViewport(const QWidget &widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
    return area != nullptr && area->viewport() == &widget;
}

QStringList placeFindings(const QWidget &widget)
{
    const QWidget &parent = *widget.parentWidget();
    QRect room = parent.rect();
    if (isViewport(parent)) {
        // It is scrolled to.
        room.setTop(-QWIDGETSIZE_MAX);
        room.setBottom(QWIDGETSIZE_MAX);
    }
    if (isOurs(widget) && !room.contains(widget.geometry())) {
        return {u"%1 (%2) sticks out of %3 (%4)"_s.arg(
            told(widget), told(widget.geometry()), told(parent), told(parent.size()))};
    }
    return {};
}

void collect(const QLayout &layout, QList<const QWidget *> &widgets)
{
    for (int index = 0; index < layout.count(); ++index) {
        const QLayoutItem *item = layout.itemAt(index);
        if (QWidget *widget = const_cast<QLayoutItem *>(item)->widget()) {
            if (widget->isVisible()) {
                widgets.append(widget);
            }
        } else if (const QLayout *inner = const_cast<QLayoutItem *>(item)->layout()) {
            collect(*inner, widgets);
        }
    }
}

/// The part that another widget must leave free: of an entry field, in which others may be, its
/// text.
QRect ownPart(const QWidget &widget)
{
    const auto *entry = qobject_cast<const QLineEdit *>(&widget);
    if (entry == nullptr) {
        return widget.geometry();
    }
    const auto regions = textRegions(widget);
    return regions.isEmpty() ? QRect() : regions.first().room.translated(widget.pos());
}

/// What is in no layout lies over others by intention.
QStringList overlapFindings(const QWidget &parent)
{
    QStringList findings;
    QList<const QWidget *> widgets;
    if (parent.layout() != nullptr) {
        collect(*parent.layout(), widgets);
    }
    for (qsizetype first = 0; first < widgets.size(); ++first) {
        for (qsizetype second = first + 1; second < widgets.size(); ++second) {
            if (ownPart(*widgets[first]).intersects(ownPart(*widgets[second]))) {
                findings.append(u"%1 (%2) and %3 (%4) overlap"_s.arg(told(*widgets[first]),
                    told(ownPart(*widgets[first])), told(*widgets[second]),
                    told(ownPart(*widgets[second]))));
            }
        }
    }
    return findings;
}

void examine(const QWidget &widget, QStringList &findings)
{
    findings += textFindings(widget) + sizeFindings(widget) + overlapFindings(widget);
    // The rows of a list are no widgets.
    if (qobject_cast<const QAbstractItemView *>(&widget) != nullptr) {
        return;
    }
    for (const QObject *object : widget.children()) {
        const auto *child = qobject_cast<const QWidget *>(object);
        if (child != nullptr && child->isVisible() && !child->isWindow() && isOurs(*child)) {
            findings += placeFindings(*child);
            examine(*child, findings);
        } else if (child != nullptr && child->isVisible() && isViewport(*child)) {
            examine(*child, findings);
        }
    }
}

} // namespace

QStringList layoutFindings(const QWidget &window)
{
    QStringList findings;
    examine(window, findings);
    // A menu is never wider than the screen.
    const QSize most = window.screen()->availableGeometry().size();
    if (const auto *menu = qobject_cast<const QMenu *>(&window);
        menu != nullptr && !fits(menu->sizeHint().boundedTo(most), menu->size())) {
        findings.append(
            u"the menu is %1 and takes %2"_s.arg(told(menu->size()), told(menu->sizeHint())));
    }
    return findings;
}

} // namespace quillon::test
