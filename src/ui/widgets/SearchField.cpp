// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SearchField.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int chevronSize = 12;
constexpr int edge = 3; ///< between a button and the field's outline
constexpr int usualWidth = 300;
constexpr int ownPadding = 12; ///< outline and padding of the field's look
constexpr int lensWidth = Theme::target;
constexpr int lensAndChevronWidth = Theme::inlineIconSize + chevronSize + 14;

/// The lens, and a chevron beside it when there is a menu.
class LensButton : public QToolButton
{
public:
    LensButton(const Theme &theme, QWidget *parent)
        : QToolButton(parent)
        , m_theme(theme)
    {
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QToolButton::paintEvent(event);
        QPainter painter(this);
        const bool hasMenu = isEnabled();
        const int wide = Theme::inlineIconSize + (hasMenu ? chevronSize + 2 : 0);
        const QRect both((width() - wide) / 2, (height() - Theme::inlineIconSize) / 2, wide,
            Theme::inlineIconSize);
        const auto draw = [&](const QString &name, int x, int size) {
            const QRect at(x, both.center().y() - size / 2 + 1, size, size);
            m_theme.icon(name, Theme::Ink::Muted)
                .paint(&painter, QStyle::visualRect(layoutDirection(), both, at));
        };
        draw(u"search"_s, both.left(), Theme::inlineIconSize);
        if (hasMenu) {
            draw(u"expand"_s, both.left() + Theme::inlineIconSize + 2, chevronSize);
        }
    }

private:
    const Theme &m_theme;
};

} // namespace

SearchField::SearchField(const Theme &theme, QWidget *parent)
    : QLineEdit(parent)
    , m_theme(theme)
    , m_lens(new LensButton(theme, this))
    , m_clear(new QToolButton(this))
    , m_menu(new QMenu(this))
{
    setProperty("look", u"field"_s);
    const auto dress = [](QToolButton *button, const QString &objectName, const QString &name) {
        button->setObjectName(objectName);
        button->setAccessibleName(name);
        button->setToolTip(plainToolTip(name));
        button->setProperty("look", u"row"_s);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::ArrowCursor);
    };
    dress(m_lens, u"searchTypes"_s, localized("What to search"));
    dress(m_clear, u"clearSearch"_s, localized("Clear"));
    m_clear->setIcon(theme.icon(u"close"_s, Theme::Ink::Muted));
    m_clear->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    m_clear->hide();
    m_lens->setEnabled(false);
    connect(m_lens, &QToolButton::clicked, this, &SearchField::openTypes);
    connect(m_clear, &QToolButton::clicked, this, &SearchField::clearByUser);
    connect(this, &QLineEdit::textEdited, this, &SearchField::searched);
    connect(this, &QLineEdit::textChanged, this,
        [this](const QString &now) { m_clear->setVisible(!now.isEmpty()); });
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
    connect(&theme, &Theme::changed, m_lens, qOverload<>(&QWidget::update));
    place();
}

void SearchField::setTitle(const QString &title)
{
    if (title == m_title) {
        return;
    }
    m_title = title;
    setAccessibleName(plainLine(title));
    updateGeometry();
    update();
}

QSize SearchField::sizeHint() const
{
    const QMargins margins = textMargins();
    const int wanted = fontMetrics().horizontalAdvance(plainLine(m_title)) + margins.left() +
                       margins.right() + 2 * ownPadding + 8;
    return {std::max(usualWidth, wanted), QLineEdit::sizeHint().height()};
}

void SearchField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (!text().isEmpty()) {
        return;
    }
    // Qt draws what stands in an empty field too pale to be read where a style sheet gives the
    // field its color.
    const QRect room = rect().marginsRemoved(textMargins()).adjusted(ownPadding, 0, -ownPadding, 0);
    QPainter painter(this);
    painter.setPen(isEnabled() ? m_theme.colors().mutedText : m_theme.colors().disabledText);
    painter.drawText(room, int(Qt::AlignVCenter | Qt::AlignLeading),
        fontMetrics().elidedText(plainLine(m_title), Qt::ElideRight, room.width()));
}

void SearchField::setTypes(const QList<Type> &types, const QString &chosen)
{
    if (types == m_types && chosen == m_chosen) {
        return;
    }
    m_types = types;
    m_chosen = chosen;
    m_menu->clear();
    for (const Type &type : types) {
        QAction *action = m_menu->addAction(QString());
        action->setText(plainLine(type.title));
        action->setCheckable(true);
        action->setChecked(type.identifier == chosen);
        connect(action, &QAction::triggered, this,
            [this, identifier = type.identifier] { Q_EMIT typeChosen(identifier); });
    }
    m_lens->setEnabled(!types.isEmpty());
    place();
}

void SearchField::openTypes()
{
    if (m_types.isEmpty() || m_menu->isVisible()) {
        return;
    }
    const int x = isRightToLeft() ? width() - m_menu->sizeHint().width() : 0;
    m_menu->popup(mapToGlobal(QPoint(x, height() + 2)));
    for (QAction *action : m_menu->actions()) {
        if (action->isChecked()) {
            m_menu->setActiveAction(action);
        }
    }
}

void SearchField::clearByUser()
{
    setFocus(Qt::OtherFocusReason);
    if (!text().isEmpty()) {
        // So that it can be undone, as if it had been erased.
        selectAll();
        del();
    }
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
        openTypes();
    } else if (event->key() == Qt::Key_Down) {
        Q_EMIT left();
    } else if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clearByUser();
    } else if (event->key() == Qt::Key_Escape) {
        Q_EMIT left();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void SearchField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    place();
}

void SearchField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        place();
    }
}

void SearchField::place()
{
    const int lens = m_types.isEmpty() ? lensWidth : lensAndChevronWidth;
    const int high = height() - 2 * edge;
    const auto put = [this](QToolButton *button, const QRect &at) {
        button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), at));
    };
    put(m_lens, {edge, edge, lens, high});
    put(m_clear, {width() - edge - Theme::target, edge, Theme::target, high});
    const int start = edge + lens + 4 - ownPadding;
    const int end = edge + Theme::target + 2 - ownPadding;
    setTextMargins(isRightToLeft() ? end : start, 0, isRightToLeft() ? start : end, 0);
}

} // namespace quillon
