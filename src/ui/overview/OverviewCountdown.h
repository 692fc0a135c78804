// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/overview/OverviewCell.h"

#include <QPointer>
#include <QWidget>

namespace quillon {

class BusyButton;
class OneLineLabel;
class Theme;

/// The countdown of a card, with the buttons that stop it and have it go on.
class OverviewCountdown : public QWidget
{
    Q_OBJECT

public:
    OverviewCountdown(const QString &device, const Theme &theme);

    void mirror(const OverviewCell::State &state);
    BusyButton *pauseButton() const { return m_pause; }
    BusyButton *resumeButton() const { return m_resume; }

Q_SIGNALS:
    void pauseChosen();
    void resumeChosen();

private:
    BusyButton *makeButton(
        const Theme &theme, const QString &objectName, const QString &icon, const QString &name);
    void resetTimerButtons();
    void hideTimerLabel();
    void setTimerButtonStateIsPaused(const OverviewCell::State &state);
    void announcePause(bool isPaused);

    OneLineLabel *m_label;
    int m_widest = 0; ///< that its text has been, in pixels
    BusyButton *m_pause;
    BusyButton *m_resume;
    /// Where the keyboard is since the buttons were hidden under it, until they come again.
    QPointer<QWidget> m_keyboardWentTo;
    std::optional<bool> m_isPaused;
};

} // namespace quillon
