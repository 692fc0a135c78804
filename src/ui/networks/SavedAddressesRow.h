// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class HeartButton;
class MainWindowModel;
class SavedListsModel;
class TokenField;

/// The saved addresses: a click puts one into the address field.
class SavedAddressesRow : public PopoverRow
{
    Q_OBJECT

public:
    SavedAddressesRow(SavedListsModel &saved, MainWindowModel &window, const Theme &theme,
        QWidget *parent = nullptr);

Q_SIGNALS:
    /// An address was put into the field.
    void filled();

private:
    void makeContent();
    void refresh();
    void choose(int index);

    SavedListsModel &m_saved;
    MainWindowModel &m_window;
    HeartButton *m_heart;
    TokenField *m_tokens;
};

} // namespace quillon
