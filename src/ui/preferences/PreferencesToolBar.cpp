// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/PreferencesToolBar.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/FlowLayout.h"
#include "ui/widgets/PlainText.h"

#include <QKeyEvent>
#include <QToolButton>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

PreferencesToolBar::PreferencesToolBar(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    setAccessibleRole(*this, QAccessible::PageTabList);
    setAccessibleName(localized("Preferences"));
    // Large texts take two lines rather than a window that is wider than the screen.
    auto *line = new FlowLayout(this, Theme::unit / 2);
    line->setAlignment(Qt::AlignHCenter);
}

void PreferencesToolBar::add(const PreferencesPaneInfo &info)
{
    auto *button = new QToolButton;
    // Before it is asked for anything.
    setAccessibleRole(*button, QAccessible::PageTab);
    button->setObjectName(info.identifier);
    button->setText(plainLine(info.label));
    button->setAccessibleName(info.label);
    const int number = Qt::Key_1 + int(m_buttons.size());
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(number));
    button->setToolTip(
        plainToolTip(filled(u"%@ (%@)"_s, {info.label, keys.toString(QKeySequence::NativeText)})));
    button->setIconSize(QSize(Theme::toolBarIconSize, Theme::toolBarIconSize));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setProperty("look", u"pane"_s);
    button->setCheckable(true);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, pane = info.pane, button] {
        // Pressed again it is still the one that is chosen.
        button->setChecked(true);
        Q_EMIT chosen(pane);
    });
    layout()->addWidget(button);
    m_buttons.append({info, button});
    draw(m_buttons.last(), m_buttons.size() - 1 == m_selected);
}

void PreferencesToolBar::draw(const Button &button, bool isSelected)
{
    button.widget->setChecked(isSelected);
    button.widget->setFocusPolicy(isSelected ? Qt::TabFocus : Qt::NoFocus);
    button.widget->setIcon(
        m_theme.icon(button.info.symbol, isSelected ? Theme::Ink::Accent : Theme::Ink::Muted));
}

void PreferencesToolBar::select(PreferencesPane pane)
{
    const bool hadKeyboard = m_buttons.value(m_selected).widget->hasFocus();
    for (qsizetype place = 0; place < m_buttons.size(); ++place) {
        const bool isSelected = m_buttons.at(place).info.pane == pane;
        draw(m_buttons.at(place), isSelected);
        m_selected = isSelected ? place : m_selected;
    }
    if (hadKeyboard) {
        m_buttons.at(m_selected).widget->setFocus(Qt::OtherFocusReason);
    }
}

void PreferencesToolBar::step(qsizetype places)
{
    const qsizetype last = m_buttons.size() - 1;
    const qsizetype place = std::clamp<qsizetype>(m_selected + places, 0, last);
    Q_EMIT chosen(m_buttons.at(place).info.pane);
}

bool PreferencesToolBar::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(object, event);
    }
    const qsizetype forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
        step(-forward);
        return true;
    case Qt::Key_Right:
        step(forward);
        return true;
    case Qt::Key_Home:
        step(-m_buttons.size());
        return true;
    case Qt::Key_End:
        step(m_buttons.size());
        return true;
    default:
        return QWidget::eventFilter(object, event);
    }
}

} // namespace quillon
