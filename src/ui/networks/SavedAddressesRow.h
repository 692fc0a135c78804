// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class HeartButton;
class MainWindowModel;
class Presence;
class SavedListsModel;
class TokenField;

/// The saved addresses: a click puts one into the address field.
class SavedAddressesRow : public PopoverRow
{
    Q_OBJECT

public:
    struct Models
    {
        SavedListsModel &saved;
        MainWindowModel &window;
        Presence &presence;
    };

    SavedAddressesRow(const Models &models, const Theme &theme, QWidget *parent = nullptr);

Q_SIGNALS:
    /// An address was put into the field.
    void filled();

private:
    void makeContent();
    void refresh();
    void choose(int index);

    void editSavedItems();

    Models m_models;
    HeartButton *m_heart;
    TokenField *m_tokens;
};

} // namespace quillon
