// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/window/TextFieldBackgroundView.h"

class QHBoxLayout;

namespace quillon {

class AddressField;
class Badge;
class BusyButton;
class ChangedTint;
class InlineLine;
class Theme;

/// The address that the interface shows, and the ways to another one.
class AddressCard : public TextFieldBackgroundView
{
    Q_OBJECT

public:
    AddressCard(MainWindowModel &model, const Theme &theme, QWidget *parent = nullptr);

    /// Puts a control beside the button for a random address.
    void addChoice(QWidget *control);
    AddressField &field() const { return *m_field; }
    /// Puts the keyboard on the button that applies what is in the field, if that can be applied.
    void focusApply();

public Q_SLOTS:
    void randomize();

private:
    QWidget *makeHead();
    void makeField();
    void makeRandomize(const Theme &theme);
    void refresh();
    void flashIfChanged();

    MainWindowModel &m_model;
    Badge *m_changed;
    AddressField *m_field;
    ChangedTint *m_tint;
    BusyButton *m_apply;
    InlineLine *m_line;
    BusyButton *m_randomize;
    // What was shown before, by which a change of the address is told.
    QString m_device;
    QString m_address;
    QHBoxLayout *m_choices;
};

} // namespace quillon
