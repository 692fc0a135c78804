// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/CountdownRow.h"

#include "base/Localized.h"
#include "presentation/rules/CountdownModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

CountdownRow::CountdownRow(CountdownModel &model, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_label(plainLabel())
    , m_pause(makeButton(
          u"pauseButton"_s, localized("Pause"), theme.icon(u"pause"_s, Theme::Ink::Text)))
    , m_resume(makeButton(
          u"resumeButton"_s, localized("Resume"), theme.icon(u"resume"_s, Theme::Ink::Text)))
{
    m_label->setObjectName(u"timerLabel"_s);
    // A text that is too long takes a second line instead of widening the window.
    m_label->setWordWrap(true);
    // Beside what it is about also where its language begins at the other side.
    m_label->setAlignment(
        Qt::AlignAbsolute | Qt::AlignVCenter | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    setMinimumHeight(Theme::rowHeight);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::unit / 2);
    // No margins, which would not be mirrored.
    line->addSpacing(Theme::unit);
    line->addWidget(m_label, 1);
    line->addWidget(m_pause);
    line->addWidget(m_resume);
    line->addSpacing(Theme::unit / 2);
    connect(m_pause, &QToolButton::clicked, &m_model, &CountdownModel::pauseCountdownTimer);
    connect(m_resume, &QToolButton::clicked, &m_model, &CountdownModel::resumeCountdownTimer);
    connect(&m_model, &CountdownModel::changed, this, &CountdownRow::refresh);
    refresh();
}

QToolButton *CountdownRow::makeButton(
    const QString &objectName, const QString &name, const QIcon &icon)
{
    auto *button = new QToolButton;
    button->setObjectName(objectName);
    button->setProperty("look", u"quiet"_s);
    button->setIcon(icon);
    button->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    button->setFixedSize(Theme::target, Theme::target);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(name);
    button->setToolTip(plainToolTip(name));
    return button;
}

void CountdownRow::refresh()
{
    const auto &state = m_model.state();
    // Its name is what it shows, for who asks; only what announcePause() says is said unasked.
    showLine(*m_label, state.label);
    announcePause();
    refreshButtons();
}

void CountdownRow::refreshButtons()
{
    const auto &state = m_model.state();
    QWidget *const focused = window()->focusWidget();
    const bool hadKeyboard = focused == this || focused == m_pause || focused == m_resume;
    QToolButton *const usable = state.pauseEnabled    ? m_pause
                                : state.resumeEnabled ? m_resume
                                                      : nullptr;
    if (hadKeyboard && usable == nullptr) {
        // Until the other one can be pressed: elsewhere the next key would do something else.
        setFocus(Qt::OtherFocusReason);
    }
    m_pause->setVisible(state.buttonsVisible);
    m_resume->setVisible(state.buttonsVisible);
    setVisible(state.buttonsVisible || !state.label.isEmpty());
    // Hidden between two ticks, they come again; once it has ended another one is another matter.
    if (!state.buttonsVisible && hadKeyboard) {
        m_keyboardWentTo = state.hasEnded ? nullptr : window()->focusWidget();
    }
    const bool isAwaited = m_keyboardWentTo != nullptr && m_keyboardWentTo == focused;
    if (state.buttonsVisible && usable != nullptr) {
        usable->setEnabled(true);
        if (hadKeyboard || isAwaited) {
            usable->setFocus(Qt::OtherFocusReason);
        }
        m_keyboardWentTo = nullptr;
    }
    m_pause->setEnabled(state.pauseEnabled);
    m_resume->setEnabled(state.resumeEnabled);
}

void CountdownRow::announcePause()
{
    const auto &state = m_model.state();
    if (state.hasEnded && isVisible()) {
        announce(*this, localized("Countdown ended"));
    }
    // Both are disabled between a press and the next tick.
    if (!state.buttonsVisible || state.pauseEnabled == state.resumeEnabled) {
        return;
    }
    const bool isPaused = state.resumeEnabled;
    if (std::exchange(m_isPaused, isPaused) != isPaused && isVisible()) {
        announce(*this, isPaused ? localized("Countdown paused") : localized("Countdown resumed"));
    }
}

} // namespace quillon
