// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <QFrame>
#include <QPointer>

#include <optional>

class QLabel;
class QPushButton;

namespace quillon {

class Theme;

/// Says at the bottom of a window what the user just did, and offers to undo it, by its button and
/// by Ctrl+Z, which it has first: before fields of text, and before popovers over its window. It
/// goes after ten seconds, which begin anew when the pointer or the focus leaves it. A new one
/// takes the place of one that is shown; another of the same window covers it, and when that is
/// gone it is there again for the rest of its time. When it goes with the keyboard, that goes back
/// to where it was before, or to the first control of the window.
class Toast : public QFrame
{
    Q_OBJECT

public:
    static constexpr std::chrono::seconds shownFor{10};

    /// `scheduler` outlives it; `window` is what it lies over.
    Toast(const Theme &theme, Scheduler &scheduler, QWidget *window);
    ~Toast() override;

    /// As "Rule deleted". `undo` is called at most once; none means that there is nothing to undo.
    void say(const QString &message, std::function<void()> undo = {});
    void dismiss();
    /// Above `widget` of the window while that can be seen, instead of at the window's bottom.
    void keepAbove(const QWidget &widget);
    QString message() const;

Q_SIGNALS:
    /// Its time is over, and nothing was undone.
    void expired();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    void waitAnew();
    void cancelWait();
    bool isLookedAt() const;
    bool isUndoKey(const QObject *watched, QEvent &event) const;
    void watchKeys(bool watched);
    void takeBack();
    void coverOthers();
    void uncoverOther();
    /// Hidden, not dismissed.
    void leave();
    void returnKeyboard();
    bool canTakeKeyboard(const QWidget *widget) const;

    const Theme &m_theme;
    Scheduler &m_scheduler;
    QLabel *m_message;
    QPushButton *m_undoButton;
    std::function<void()> m_undo;
    std::optional<Scheduler::Token> m_wait;
    QPointer<const QWidget> m_below; ///< what it keeps above
    QPointer<QWidget> m_before;      ///< had the keyboard before its button
};

} // namespace quillon
