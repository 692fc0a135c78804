// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverDetails.h"

namespace quillon {

class HeartButton;
class InlineLine;
class MainWindowModel;
class SavedListsModel;
class Theme;
class TokenField;
class TokenScrollArea;

/// The saved addresses as tokens, and the heart of the current address.
class SavedAddressesDetails : public PopoverDetails
{
    Q_OBJECT

public:
    SavedAddressesDetails(SavedListsModel &model, MainWindowModel &window, const Theme &theme);

    void refresh() override;

Q_SIGNALS:
    /// The address of a token was put into the field.
    void filled();
    void editChosen();
    /// Of a token.
    void dragBegan();
    void dragEnded();

private:
    void choose(int index);

    SavedListsModel &m_model;
    MainWindowModel &m_window;
    HeartButton *m_heart;
    TokenField *m_tokens;
    TokenScrollArea *m_area;
    InlineLine *m_hint;
};

} // namespace quillon
