// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class MainWindowModel;
class Presence;
class SavedListsModel;

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

    SavedAddressesRow(const Models &models, const Theme &theme);

Q_SIGNALS:
    /// An address was put into the field.
    void filled();

protected:
    PopoverDetails *makeDetails() override;

private:
    void refresh();
    void leaveForField();
    void editSavedItems();

    Models m_models;
};

} // namespace quillon
