// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/networks/SavedEntryPopoverModel.h"
#include "ui/widgets/Popover.h"

class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace quillon {

/// What the two edit popovers share: the name and the button that removes the entry. Return, or
/// leaving a name that was changed, saves it and closes; so does whatever closes the popover with a
/// changed name in it. Only Escape closes and keeps the name of before. Its model says when it
/// closes; it is opened beside its token by whoever shows the tokens.
class SavedEntryPopover : public Popover
{
    Q_OBJECT

public:
    using Kind = SavedEntryPopoverModel::Popover;

protected:
    SavedEntryPopover(
        SavedEntryPopoverModel &model, Kind kind, const Theme &theme, QWidget *parent);

    const SavedEntryPopoverModel::State &state() const { return m_model.state(); }
    /// Puts what tells of the entry between its name and the button, and what can be done there in
    /// the order of Tab.
    void add(QWidget *details, const QList<QWidget *> &controls = {});
    /// Shows state(), which is that of an entry of this kind.
    virtual void refreshDetails() = 0;

    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeContent();
    QString shownName() const;
    void fill();
    void refresh();
    void leaveName();
    void endEditing();
    void closed();

    SavedEntryPopoverModel &m_model;
    const Kind m_kind;
    QVBoxLayout *m_details;
    QLineEdit *m_name;
    QPushButton *m_remove;
    bool m_hasEnded = false; ///< the name was taken; it closes in the next turn
};

} // namespace quillon
