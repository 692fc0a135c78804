// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/NotificationCenter.h"
#include "presentation/overview/OverviewChanges.h"
#include "presentation/overview/OverviewRow.h"
#include "rules/RuleStatusSign.h"

#include <QObject>

namespace quillon {

class SettingsStore;

/// One row of the overview, as its cell draws it: the row's record, which it keeps up to date from
/// the broadcast "updateOverview", and what follows from it. What a person has to know beside what
/// the record says is in Live. Main thread.
class OverviewCell : public QObject
{
    Q_OBJECT

public:
    /// How the interface is at this moment. The record keeps the addresses that it was made with.
    struct Live
    {
        bool isGone = false;
        QString currentAddress;
        bool isUnderWay = false; ///< a change of its address, whoever asked
        ChangeRequest action = ChangeRequest::None;
        std::optional<ChangeOutcome> outcome = {}; ///< of the last change since the rows were made
    };
    enum class LineKind
    {
        Hint,
        Done,
        Notice,
        Failure,
    };
    struct Line
    {
        LineKind kind = LineKind::Hint;
        QString text = {};

        bool operator==(const Line &) const = default;
    };
    /// What one of the buttons says: what it does, or why it does nothing.
    struct Button
    {
        bool isEnabled = false;
        bool isBusy = false;
        QString hint = {};

        bool operator==(const Button &) const = default;
    };
    struct State
    {
        OverviewRow row;

        QString timerLabel;
        bool timerButtonsVisible = false;
        bool pauseEnabled = true;
        bool resumeEnabled = false;
        QString identifier; ///< the device that the timer buttons act on
        QString configureToolTip;
        RuleStatusSign rules;

        QString title;
        QString linkText; ///< the network's name where it is on one
        bool linkActive = false;
        QString currentText; ///< addresses in display case
        QString hardwareText;
        /// The address that it has now, where the record has another one; else "".
        QString addressNow;
        QString vendorText;
        Line line;
        Button randomize;
        Button restore;

        bool operator==(const State &) const = default;
    };

    OverviewCell(
        const OverviewRow &row, NotificationCenter &notifications, const SettingsStore &settings);
    ~OverviewCell() override;

    const State &state() const { return m_state.get(); }
    const OverviewRow &row() const { return m_state->row; }
    /// The record was changed: the cell is drawn from it.
    void setRow(const OverviewRow &row);
    void setLive(const Live &live);

    /// "updateOverview": takes over what it says of the row's device. Nothing happens when that is
    /// not in it.
    void updateCell(const QVariantMap &userInfo);
    /// A timer button was used: it is disabled until the countdown ticks again.
    void disablePauseButton();
    void disableResumeButton();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    static void drawCell(State &state);
    static void updateRuleButton(State &state, qlonglong hasRule);
    static void hideTimerLabel(State &state);
    static void setTimerButtonStateIsPaused(State &state, bool isPaused);
    bool showsCountdown(const QVariantMap &entry) const;
    void fillTexts(State &state) const;
    void fillLine(State &state) const;
    void fillButtons(State &state) const;
    QString display(const QString &address) const;

    NotificationCenter &m_notifications;
    const SettingsStore &m_settings;
    NotificationCenter::Token m_observed;
    Live m_live;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
