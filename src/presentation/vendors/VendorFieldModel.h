// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>

#include <optional>

namespace quillon {

class NotificationCenter;
class VendorList;
class VendorTaker;

/// The vendor text field with its popover, a list of manufacturers that the typed text narrows.
/// Widgets mirror state() and the rows, and hand on what the user does. The list is in memory only
/// while the popover is shown, and whole only a moment later: what is typed until then narrows it
/// when it is there. Main thread.
class VendorFieldModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        QString text;
        bool enabled = true;
        QString whyDisabled; ///< "" while it is enabled
        bool popoverShown = false;
        /// The row of the list that is selected; none while the list is not in memory.
        std::optional<qsizetype> selectedRow;
        /// Why there is nothing in the list to choose; "" where there is.
        QString message;

        bool operator==(const State &) const = default;
    };
    /// What an editing field can be told to do.
    enum class Command
    {
        MoveDown,
        Other,
    };
    enum class Key
    {
        Return,
        Down,
        Up,
        Other,
    };

    VendorFieldModel(VendorTaker &taker, VendorList &list, NotificationCenter &notifications);

    const State &state() const { return m_state.get(); }
    /// What stands in the field is neither chosen nor given up.
    bool isTyping() const;
    /// None while the popover is closed.
    qsizetype rowCount() const;
    /// The text of a row that is there.
    QString rowText(qsizetype row) const;
    QString rowToolTip(qsizetype row) const { return rowText(row); }

    /// The user edited the field to `text`.
    void controlTextDidChange(const QString &text);
    /// The user's command in the field. Always false: the field carries it out as well.
    bool controlDoCommandBySelector(Command command);
    /// The user is about to select a row of the list, which is then the choice. Always true.
    bool tableViewShouldSelectRow(qsizetype row);
    /// A key in the list: true when it is the list's own to handle.
    bool tableKeyDown(Key key);

    void toggleVendorViewPopover();
    void showVendorViewPopover();
    void closeVendorViewPopover();
    /// The user gives up what was typed, or leaves it without choosing: the popover closes, and the
    /// choice stands in the field.
    void giveUpTyping();

    // What follows from elsewhere.
    /// The choice is `text`. While the user types, what is typed stays, and goes on narrowing the
    /// list.
    void showText(const QString &text);
    void selectEntry(const QString &entry);
    void rearrange();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// Other rows are shown than before, beyond what opening and closing the popover brings.
    void rowsChanged();
    /// Typing opened the popover: the typed text stays, and typing goes on behind it.
    void openedByTyping();
    /// The user went from the field into the list.
    void listEntered();
    /// A row was selected, maybe one out of sight.
    void rowSelected(qsizetype row);
    /// The list that was opened is there, and the choice is selected in it.
    void openedAtChoice();

private:
    void takeText(const QString &text);
    QString message() const;
    void selectRow(qsizetype row);
    void selectFirstRowIfEntered();
    std::optional<qsizetype> selectedRow() const;

    VendorTaker &m_taker;
    VendorList &m_list;
    NotificationCenter &m_notifications;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    /// What the selected row holds, by which it is found when the list is read or the rows change.
    QString m_selectedEntry;
    QString m_chosenText; ///< what the field shows of the choice
    /// The device that somebody types for, who has neither chosen nor given up.
    std::optional<QString> m_typingFor;
    /// Nobody has typed since the popover was opened, and the list is not there yet.
    bool m_opensAtChoice = false;
    /// The user went into a list that is not there yet: its first row becomes the choice.
    bool m_firstRowWanted = false;
};

} // namespace quillon
