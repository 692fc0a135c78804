// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/RowButton.h"

#include "base/Localized.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int inset = Theme::unit;
constexpr int labelGap = Theme::unit;
constexpr int dotSize = 10;
constexpr int chevronSize = Theme::inlineIconSize;

} // namespace

RowButton::RowButton(const Theme &theme, const QString &label, QWidget *parent)
    : QAbstractButton(parent)
    , m_theme(theme)
    , m_label(label)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *copy = new QAction(localized("Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, [this] {
        auto *content = new QMimeData;
        // As it came: it is not shown.
        content->setData(u"text/plain"_s, m_value.toUtf8());
        QGuiApplication::clipboard()->setMimeData(content);
    });
    addAction(copy);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
    takeRole();
}

void RowButton::setValue(const QString &value, ValueLook look)
{
    if (value == m_value && look == m_look) {
        return;
    }
    m_value = value;
    m_look = look;
    describe();
}

void RowButton::setDot(const std::optional<Dot> &dot)
{
    if (dot != m_dot) {
        m_dot = dot;
        update();
    }
}

void RowButton::setHasPopover(bool hasPopover)
{
    if (hasPopover != m_hasPopover) {
        m_hasPopover = hasPopover;
        takeRole();
    }
}

void RowButton::takeRole()
{
    setFocusPolicy(m_hasPopover ? Qt::StrongFocus : Qt::NoFocus);
    setAccessibleRole(*this, m_hasPopover ? QAccessible::Button : QAccessible::StaticText);
    describe();
}

void RowButton::setOpen(bool open)
{
    m_open = open;
    m_isHighlighted = open;
    update();
}

void RowButton::resetEmphasis()
{
    m_isHighlighted = false;
    // The pointer may have left while a popover had it; nothing says so any more.
    setAttribute(Qt::WA_UnderMouse, false);
    update();
}

void RowButton::setRowToolTip(const QString &text)
{
    m_toolTip = text;
    describe();
}

void RowButton::describe()
{
    const QString said = m_value.isEmpty() ? localized("None") : plainLine(m_value);
    setAccessibleName(u"%1, %2"_s.arg(m_label, said));
    setAccessibleDescription(plainLine(m_toolTip));
    const bool isCut = !m_value.isEmpty() && shownValue() != plainLine(m_value);
    setToolTip(plainToolTip(!m_toolTip.isEmpty() ? m_toolTip : isCut ? m_value : QString()));
    actions().constFirst()->setEnabled(!m_value.isEmpty());
    update();
}

int RowButton::labelWidth() const
{
    // The values of a card begin at one place, also of a row that shares its line with a button.
    const QWidget *card = this;
    while (card->parentWidget() != nullptr && !card->isWindow() && !card->inherits("QFrame")) {
        card = card->parentWidget();
    }
    int widest = std::max(Theme::rowLabelWidth, ownLabelWidth());
    const auto rows = card->findChildren<RowButton *>();
    for (const RowButton *row : rows) {
        if (row->window() == window() && row->isVisibleTo(card)) {
            widest = std::max(widest, row->ownLabelWidth());
        }
    }
    return widest;
}

int RowButton::ownLabelWidth() const
{
    if (!m_labelWidth) {
        m_labelWidth = fontMetrics().horizontalAdvance(m_label);
    }
    return *m_labelWidth;
}

QRect RowButton::valueRect() const
{
    const int start = inset + labelWidth() + labelGap + (m_dot ? dotSize + labelGap : 0);
    // A row without a chevron keeps its place free: values end where those of the others do.
    return rect().adjusted(start, 0, -(inset + chevronSize + labelGap), 0);
}

QFont RowButton::valueFont() const
{
    const bool isAddress = m_look == ValueLook::Address && !m_value.isEmpty();
    return isAddress ? Theme::font(Theme::Type::Address) : font();
}

QString RowButton::shownValue() const
{
    const QString line = m_value.isEmpty() ? u"–"_s : plainLine(m_value);
    return QFontMetrics(valueFont()).elidedText(line, Qt::ElideMiddle, valueRect().width());
}

QSize RowButton::sizeHint() const
{
    const QString line = m_value.isEmpty() ? u"–"_s : plainLine(m_value);
    QSize size = minimumSizeHint();
    size.rwidth() += QFontMetrics(valueFont()).horizontalAdvance(line);
    return size;
}

QSize RowButton::minimumSizeHint() const
{
    const int text = std::max(fontMetrics().height(), QFontMetrics(valueFont()).height());
    const int width = 2 * inset + labelWidth() + labelGap + (m_dot ? dotSize + labelGap : 0) +
                      labelGap + chevronSize + 4 * fontMetrics().averageCharWidth();
    return {width, std::max(Theme::rowHeight, text + 2 * Theme::unit)};
}

void RowButton::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    describe();
}

void RowButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_labelWidth.reset();
    }
    QAbstractButton::changeEvent(event);
}

void RowButton::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = m_theme.colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_hasPopover && isEnabled() && (m_isHighlighted || underMouse() || isDown())) {
        painter.setBrush(m_isHighlighted ? colors.tint
                         : isDown()      ? colors.controlPressed
                                         : colors.controlHover);
        painter.setPen(m_isHighlighted ? QPen(colors.tintEdge) : QPen(Qt::NoPen));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Theme::controlRadius,
            Theme::controlRadius);
    }
    const auto place = [this](const QRect &rect) {
        return QStyle::visualRect(layoutDirection(), this->rect(), rect);
    };
    const int start = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                      int(Qt::AlignVCenter) | int(Qt::TextSingleLine);
    painter.setFont(font());
    painter.setPen(isEnabled() ? colors.mutedText : colors.disabledText);
    const QRect label(inset, 0, labelWidth(), height());
    painter.drawText(place(label), start, m_label);
    if (m_dot) {
        const QRect dot(label.right() + 1 + labelGap, (height() - dotSize) / 2, dotSize, dotSize);
        m_theme.icon(m_dot->isFull ? u"link-active"_s : u"link-inactive"_s, m_dot->ink)
            .paint(&painter, place(dot));
    }
    const bool isMuted = m_look == ValueLook::Muted || m_value.isEmpty();
    painter.setPen(!isEnabled() ? colors.disabledText : isMuted ? colors.mutedText : colors.text);
    painter.setFont(valueFont());
    const QString value = shownValue();
    // It reads in its own direction: an address would be torn apart by that of the window.
    painter.setLayoutDirection(value.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(place(valueRect()), start | int(Qt::AlignAbsolute), value);
    if (m_hasPopover) {
        const QRect chevron(
            width() - inset - chevronSize, (height() - chevronSize) / 2, chevronSize, chevronSize);
        m_theme
            .icon(isRightToLeft() ? u"chevron-left"_s : u"collapsed"_s,
                m_isHighlighted ? Theme::Ink::OnTint : Theme::Ink::Muted)
            .paint(&painter, place(chevron));
    }
}

void RowButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

bool RowButton::hitButton(const QPoint &position) const
{
    return m_hasPopover && QAbstractButton::hitButton(position);
}

} // namespace quillon
