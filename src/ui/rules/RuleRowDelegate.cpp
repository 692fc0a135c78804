// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RuleRowDelegate.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Badge.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/ToggleSwitch.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int inset = Theme::unit + 4;
constexpr int between = Theme::spacing;
constexpr int longestName = 120; ///< as it is shown everywhere

QFont nameFont()
{
    return Theme::font(Theme::Type::Strong);
}

QFont sentenceFont()
{
    return Theme::font(Theme::Type::Caption);
}

bool isOn(const QModelIndex &index)
{
    return index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

} // namespace

RuleRowDelegate::RuleRowDelegate(const Theme &theme, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_theme(theme)
{
}

int RuleRowDelegate::rowHeight()
{
    const int lines = QFontMetrics(nameFont()).height() + QFontMetrics(sentenceFont()).height();
    return std::max(int(Theme::tallRowHeight), lines + 2 * Theme::unit);
}

RuleRowDelegate::Places RuleRowDelegate::placesIn(
    const QRect &row, const QString &badge, Qt::LayoutDirection direction)
{
    const QSize pill = badge.isEmpty() ? QSize() : Badge::sizeOf(badge);
    const int first = row.left() + inset;
    const int text = first + ToggleSwitch::trackSize.width() + between;
    const int end = row.right() + 1 - inset - (badge.isEmpty() ? 0 : pill.width() + between);
    const int nameHeight = QFontMetrics(nameFont()).height();
    const int sentenceHeight = QFontMetrics(sentenceFont()).height();
    const int top = row.top() + (row.height() - nameHeight - sentenceHeight) / 2;
    const auto place = [&](const QRect &rect) { return QStyle::visualRect(direction, row, rect); };
    Places places;
    places.toggle = place({first, row.top() + (row.height() - Theme::target) / 2,
        ToggleSwitch::trackSize.width(), Theme::target});
    places.name = place({text, top, end - text, nameHeight});
    places.sentence = place({text, top + nameHeight, end - text, sentenceHeight});
    if (!badge.isEmpty()) {
        places.badge = place({end + between, row.top() + (row.height() - pill.height()) / 2,
            pill.width(), pill.height()});
    }
    return places;
}

void RuleRowDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const ThemeColors &colors = m_theme.colors();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QString badge = index.data(BadgeRole).toString();
    const Places places = placesIn(option.rect, badge, option.direction);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isSelected) {
        painter->setPen(colors.tintEdge);
        painter->setBrush(colors.tint);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -1.5),
            Theme::controlRadius, Theme::controlRadius);
    } else if (index.row() + 1 < index.model()->rowCount()) {
        painter->setPen(colors.surfaceBorder);
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
    ToggleSwitch::draw(*painter, m_theme, places.toggle,
        {.position = isOn(index) ? 1.0 : 0.0,
            .isOn = isOn(index),
            .isMirrored = option.direction == Qt::RightToLeft});
    const auto write = [&](const QRect &place, const QFont &font, const QColor &color,
                           const QString &text) {
        painter->setFont(font);
        painter->setPen(color);
        const int alignment =
            int(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter));
        painter->drawText(place, alignment | int(Qt::TextSingleLine),
            QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
    };
    write(places.name, nameFont(), colors.text, index.data().toString());
    write(places.sentence, sentenceFont(), colors.mutedText, index.data(SentenceRole).toString());
    if (!badge.isEmpty()) {
        painter->setFont(Theme::font(Theme::Type::Badge));
        const bool isTint = index.data(IsTintRole).toBool();
        Badge::draw(*painter, m_theme, places.badge, badge,
            isTint ? Badge::Tone::Tint : Badge::Tone::Neutral, isSelected);
    }
    painter->restore();
}

QSize RuleRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, rowHeight()};
}

QWidget *RuleRowDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const
{
    Q_EMIT editingBegun();
    auto *editor = new QLineEdit(parent);
    editor->setObjectName(u"nameCellField"_s);
    editor->setAccessibleName(localized("Name"));
    editor->setToolTip(plainToolTip(localized("Press Return to rename the rule")));
    editor->setFont(nameFont());
    editor->setMaxLength(longestName);
    return editor;
}

void RuleRowDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // What was typed stays when the row is refreshed.
    auto *const field = static_cast<QLineEdit *>(editor);
    if (!field->isModified()) {
        field->setText(plainLine(index.data(NameRole).toString()));
        field->selectAll();
    }
}

void RuleRowDelegate::setModelData(
    QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *const field = static_cast<const QLineEdit *>(editor);
    if (field->isModified()) {
        model->setData(index, plainLine(field->text()), NameRole);
    }
}

void RuleRowDelegate::updateEditorGeometry(
    QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect name =
        placesIn(option.rect, index.data(BadgeRole).toString(), option.direction).name;
    const int taller = std::max(0, Theme::target - name.height()) / 2;
    editor->setGeometry(name.adjusted(-Theme::unit / 2, -taller, Theme::unit / 2, taller));
}

bool RuleRowDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto isOnSwitch = [&] {
        const auto *const mouse = static_cast<QMouseEvent *>(event);
        return mouse->button() == Qt::LeftButton &&
               placesIn(option.rect, {}, option.direction)
                   .toggle.contains(mouse->position().toPoint());
    };
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) {
        return isOnSwitch();
    }
    if (type == QEvent::KeyPress) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_Space && key->key() != Qt::Key_Select) {
            return false;
        }
        // A key that is held switches once.
        if (key->isAutoRepeat()) {
            return true;
        }
    } else if (type != QEvent::MouseButtonRelease || !isOnSwitch()) {
        return false;
    }
    return model->setData(index, isOn(index) ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

} // namespace quillon
