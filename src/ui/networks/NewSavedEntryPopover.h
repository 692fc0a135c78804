// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/Popover.h"

class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace quillon {

class InlineLine;
class NewSavedEntryModel;

/// Saves an address or a network by hand. Return in either field, or its button, saves and closes;
/// whatever else closes it saves nothing.
class NewSavedEntryPopover : public Popover
{
    Q_OBJECT

public:
    NewSavedEntryPopover(NewSavedEntryModel &model, const Theme &theme, QWidget *parent);

private:
    class EntryRules;

    void makeContent();
    void addField(QVBoxLayout &column, QLineEdit &field, const QString &caption);
    void begin();
    void refresh();
    void add();

    NewSavedEntryModel &m_model;
    QLineEdit *m_address;
    QLineEdit *m_name;
    InlineLine *m_line;
    QPushButton *m_add;
};

} // namespace quillon
