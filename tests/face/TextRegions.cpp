// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/TextRegions.h"

#include "ui/rules/RuleRowDelegate.h"
#include "ui/rules/RulesListView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Badge.h"
#include "ui/widgets/RowButton.h"
#include "ui/widgets/Token.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTextDocument>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// Within it no edge of a control is drawn, nor the round of its corners.
constexpr int edge = 4;
/// What a line edit keeps free on either side of its text.
constexpr int entryMargin = 2;
/// Around a row of a list: its padding and its edge (theme.qss).
constexpr int itemMargin = 9;

QString plainText(const QString &toolTip)
{
    if (!Qt::mightBeRichText(toolTip)) {
        return toolTip;
    }
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

QRect inner(const QRect &rect)
{
    return rect.adjusted(edge, edge, -edge, -edge);
}

TextRegion ofLabel(const QLabel &label)
{
    // What was cut has its name in full.
    const bool isCut = label.text().endsWith(u'…') && label.accessibleName() != label.text() &&
                       label.accessibleName().startsWith(label.text().chopped(1));
    const QString text = isCut ? label.accessibleName() : label.text();
    const QRect room = label.contentsRect();
    const int mnemonic = label.buddy() != nullptr ? int(Qt::TextShowMnemonic) : 0;
    const QRect endless(0, 0, label.wordWrap() ? room.width() : QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const int flags = mnemonic | (label.wordWrap() ? int(Qt::TextWordWrap) : 0);
    return {text, room, label.fontMetrics().boundingRect(endless, flags, text).size(), label.rect(),
        label.isEnabled(), isCut, plainText(label.toolTip())};
}

TextRegion ofButton(const QAbstractButton &button)
{
    return {
        button.text(), button.rect(), button.sizeHint(), inner(button.rect()), button.isEnabled()};
}

TextRegion ofToken(const Token &token)
{
    const int text = token.fontMetrics().horizontalAdvance(token.accessibleName());
    // A pill as high as wide at each end.
    const QRect room = token.rect().adjusted(token.height() / 2, 0, -token.height() / 2, 0);
    return {token.accessibleName(), room, QSize(text, token.fontMetrics().height()),
        room.adjusted(0, edge, 0, -edge), token.isEnabled(), true, plainText(token.toolTip())};
}

QList<TextRegion> ofRow(const RowButton &row)
{
    // What a row takes beside its value, which has four characters at least.
    const int least = 4 * row.fontMetrics().averageCharWidth();
    const int beside = row.minimumSizeHint().width() - least;
    const int value = row.sizeHint().width() - row.minimumSizeHint().width();
    const int atEnd = 2 * Theme::unit + Theme::inlineIconSize;
    const auto place = [&row](const QRect &rect) {
        return QStyle::visualRect(row.layoutDirection(), row.rect(), rect);
    };
    const QRect room(beside - atEnd, 0, row.width() - beside, row.height());
    const QString label = row.accessibleName().section(u", "_s, 0, 0);
    return {{label, row.rect(), {},
                place({Theme::unit, edge, Theme::rowLabelWidth, row.height() - 2 * edge}),
                row.isEnabled()},
        {row.value(), place(room), QSize(value, row.minimumSizeHint().height()),
            place(room).adjusted(0, edge, 0, -edge), row.isEnabled(), true,
            plainText(row.toolTip())}};
}

TextRegion ofEntry(const QLineEdit &entry)
{
    QStyleOptionFrame option;
    option.initFrom(&entry);
    option.lineWidth = entry.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &entry);
    const QMargins margins = entry.textMargins();
    const QRect room = entry.style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, &entry)
                           .marginsRemoved(margins)
                           .adjusted(entryMargin, 0, -entryMargin, 0);
    const QString text = entry.text().isEmpty() ? entry.placeholderText() : entry.displayText();
    return {text, room,
        QSize(entry.fontMetrics().horizontalAdvance(text), entry.fontMetrics().height()), room,
        entry.isEnabled(), true, plainText(entry.toolTip())};
}

TextRegion ofSelector(const QComboBox &selector)
{
    // What a style is told of a button is protected.
    struct Told : QComboBox
    {
        using QComboBox::initStyleOption;
    };
    QStyleOptionComboBox option;
    (selector.*&Told::initStyleOption)(&option);
    const QRect room = selector.style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &selector);
    const QString text = selector.currentText();
    return {text, room,
        QSize(selector.fontMetrics().horizontalAdvance(text), selector.fontMetrics().height()),
        room.intersected(inner(selector.rect())), selector.isEnabled(), true,
        plainText(selector.toolTip())};
}

QList<TextRegion> ofList(const QListView &list)
{
    QList<TextRegion> rows;
    const QAbstractItemModel *model = list.model();
    for (int row = 0; model != nullptr && row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        const QRect place = list.visualRect(index).intersected(list.viewport()->rect());
        // One that is scrolled to its half is read when it is scrolled on.
        if (place.height() < list.visualRect(index).height()) {
            continue;
        }
        const QString text = index.data().toString();
        const QRect room = place.adjusted(itemMargin, 0, -itemMargin, 0)
                               .translated(list.viewport()->geometry().topLeft());
        rows.append({text, room,
            QSize(list.fontMetrics().horizontalAdvance(text), list.fontMetrics().height()),
            room.adjusted(0, 1, 0, -1), list.isEnabled(), true,
            plainText(index.data(Qt::ToolTipRole).toString())});
    }
    return rows;
}

/// The rows of rules: two lines and a badge each.
QList<TextRegion> ofRules(const RulesListView &list)
{
    QList<TextRegion> texts;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        const QModelIndex index = list.model()->index(row, 0);
        const QRect place = list.visualRect(index).intersected(list.viewport()->rect());
        if (place.height() < list.visualRect(index).height()) {
            continue;
        }
        const QString badge = index.data(RuleRowDelegate::BadgeRole).toString();
        const auto places =
            RuleRowDelegate::placesIn(list.visualRect(index), badge, list.layoutDirection());
        const QPoint corner = list.viewport()->geometry().topLeft();
        const auto add = [&](const QRect &room, const QString &text, const QFont &font,
                             const QString &whole) {
            const QFontMetrics metrics(font);
            texts.append({text, room.translated(corner),
                QSize(metrics.horizontalAdvance(text), metrics.height()), room.translated(corner),
                list.isEnabled(), true, whole});
        };
        const QString said = plainText(index.data(Qt::ToolTipRole).toString());
        const QString name = index.data().toString();
        add(places.name, name, Theme::font(Theme::Type::Strong), said);
        add(places.sentence, index.data(RuleRowDelegate::SentenceRole).toString(),
            Theme::font(Theme::Type::Caption), said);
        if (!badge.isEmpty()) {
            add(places.badge.adjusted(Theme::unit, 1, -Theme::unit, -1), badge,
                Theme::font(Theme::Type::Badge), {});
        }
    }
    return texts;
}

QList<TextRegion> ofTabs(const QTabBar &tabs)
{
    QList<TextRegion> texts;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const QRect room = tabs.tabRect(tab);
        texts.append({tabs.tabText(tab), room,
            QSize(tabs.fontMetrics().horizontalAdvance(tabs.tabText(tab)),
                tabs.fontMetrics().height()),
            inner(room), tabs.isTabEnabled(tab)});
    }
    return texts;
}

QList<TextRegion> ofMenu(const QMenu &menu)
{
    QList<TextRegion> entries;
    for (QAction *action : menu.actions()) {
        if (action->isVisible() && !action->isSeparator()) {
            const QRect place = menu.actionGeometry(action);
            entries.append({action->text(), place, {}, inner(place), action->isEnabled()});
        }
    }
    return entries;
}

QList<TextRegion> allRegions(const QWidget &widget)
{
    if (const auto *row = qobject_cast<const RowButton *>(&widget)) {
        return ofRow(*row);
    }
    if (const auto *token = qobject_cast<const Token *>(&widget)) {
        return {ofToken(*token)};
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        return {ofButton(*button)};
    }
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return {ofLabel(*label)};
    }
    if (const auto *entry = qobject_cast<const QLineEdit *>(&widget)) {
        return {ofEntry(*entry)};
    }
    if (const auto *selector = qobject_cast<const QComboBox *>(&widget)) {
        return {ofSelector(*selector)};
    }
    if (const auto *badge = qobject_cast<const Badge *>(&widget)) {
        return {{badge->accessibleName(), badge->rect(), badge->sizeHint(),
            badge->rect().adjusted(Theme::unit, edge, -Theme::unit, -edge), badge->isEnabled()}};
    }
    if (const auto *rules = qobject_cast<const RulesListView *>(&widget)) {
        return ofRules(*rules);
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        return ofTabs(*tabs);
    }
    if (const auto *list = qobject_cast<const QListView *>(&widget)) {
        return ofList(*list);
    }
    if (const auto *menu = qobject_cast<const QMenu *>(&widget)) {
        return ofMenu(*menu);
    }
    return {};
}

} // namespace

QList<TextRegion> textRegions(const QWidget &widget)
{
    QList<TextRegion> regions = allRegions(widget);
    regions.removeIf([](const TextRegion &region) { return region.text.isEmpty(); });
    return regions;
}

} // namespace quillon::test
