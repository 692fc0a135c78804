// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverDetails.h"

namespace quillon {

class HeartButton;
class SavedListsModel;
class Theme;
class TokenField;
class TokenScrollArea;

/// The saved addresses as tokens, and the heart of the current address.
class SavedAddressesDetails : public PopoverDetails
{
    Q_OBJECT

public:
    SavedAddressesDetails(SavedListsModel &model, const Theme &theme);

    void refresh() override;

Q_SIGNALS:
    /// The token with this text was chosen.
    void chosen(const QString &text);
    void editingWanted();
    /// Of a token.
    void dragBegan();
    void dragEnded();

private:
    SavedListsModel &m_model;
    HeartButton *m_heart;
    TokenField *m_tokens;
    TokenScrollArea *m_area;
};

} // namespace quillon
