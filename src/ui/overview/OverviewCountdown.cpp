// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewCountdown.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/OneLineLabel.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

OverviewCountdown::OverviewCountdown(const QString &device, const Theme &theme)
    : m_label(new OneLineLabel(Qt::ElideMiddle))
    , m_pause(makeButton(theme, u"timerPause"_s, u"pause"_s,
          filled(localized("Pause the countdown of %@"), {device})))
    , m_resume(makeButton(theme, u"timerResume"_s, u"resume"_s,
          filled(localized("Resume the countdown of %@"), {device})))
{
    m_label->label().setObjectName(u"timerLabel"_s);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::unit);
    // No margin, which would not be mirrored: it begins where the name does.
    line->addSpacing(Theme::headerIconSize + Theme::spacing);
    line->addWidget(m_label, 1);
    line->addWidget(m_pause);
    line->addWidget(m_resume);
    line->addStretch();
    connect(m_pause, &QPushButton::clicked, this, [this] {
        resetTimerButtons();
        Q_EMIT pauseChosen();
    });
    connect(m_resume, &QPushButton::clicked, this, [this] {
        resetTimerButtons();
        Q_EMIT resumeChosen();
    });
    hide();
}

BusyButton *OverviewCountdown::makeButton(
    const Theme &theme, const QString &objectName, const QString &icon, const QString &name)
{
    auto *button = new BusyButton(theme, Theme::Ink::Text, QString());
    button->setObjectName(objectName);
    button->setProperty("look", u"symbol"_s);
    button->setIcon(theme.icon(icon, Theme::Ink::Text));
    button->setFixedSize(Theme::target, Theme::target);
    button->setAccessibleName(plainLine(name));
    button->setToolTip(plainToolTip(name));
    button->setAutoDefault(true);
    return button;
}

void OverviewCountdown::mirror(const OverviewCell::State &state)
{
    if (!state.timerButtonsVisible) {
        hideTimerLabel();
        return;
    }
    m_label->setLine(state.timerLabel);
    // Digits differ in width, and the buttons are to keep their place.
    m_widest = std::max(
        m_widest, m_label->label().fontMetrics().horizontalAdvance(plainLine(state.timerLabel)) +
                      Theme::unit);
    m_label->setMaximumWidth(m_widest);
    setVisible(true);
    setTimerButtonStateIsPaused(state);
}

void OverviewCountdown::resetTimerButtons()
{
    m_pause->setDown(false);
    m_resume->setDown(false);
}

void OverviewCountdown::hideTimerLabel()
{
    const QWidget *const focused = window()->focusWidget();
    const bool hadKeyboard = focused == m_pause || focused == m_resume;
    m_label->setLine(QString());
    m_widest = 0;
    setVisible(false);
    m_isPaused.reset();
    if (hadKeyboard && parentWidget() != nullptr) {
        // An evaluation of the rules hides it for less than a second.
        parentWidget()->setFocus(Qt::OtherFocusReason);
        m_keyboardWentTo = parentWidget();
    }
}

void OverviewCountdown::setTimerButtonStateIsPaused(const OverviewCell::State &state)
{
    QWidget *const focused = window()->focusWidget();
    const bool hadKeyboard = focused == m_pause || focused == m_resume;
    const QWidget *const awaited = std::exchange(m_keyboardWentTo, nullptr);
    BusyButton *const usable = state.pauseEnabled    ? m_pause
                               : state.resumeEnabled ? m_resume
                                                     : nullptr;
    if (usable != nullptr) {
        usable->setUsable(true);
        // Whoever paused it goes on from there; until the tick the button that was used keeps it.
        if (hadKeyboard || (awaited != nullptr && awaited == focused)) {
            usable->setFocus(Qt::OtherFocusReason);
        }
        announcePause(usable == m_resume);
    }
    m_pause->setUsable(state.pauseEnabled);
    m_resume->setUsable(state.resumeEnabled);
}

void OverviewCountdown::announcePause(bool isPaused)
{
    const auto before = std::exchange(m_isPaused, isPaused);
    if (before && *before != isPaused && isVisible()) {
        announce(*this, isPaused ? localized("Countdown paused") : localized("Countdown resumed"));
    }
}

} // namespace quillon
