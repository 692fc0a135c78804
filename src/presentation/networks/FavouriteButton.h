// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// A heart that keeps something in a saved list or takes it out again.
struct FavouriteButton
{
    QString symbol; ///< "heart.fill" when it is saved, else "heart"
    QString accessibilityText;
    bool removes = false; ///< what choosing the button does: remove, else add

    bool operator==(const FavouriteButton &) const = default;
};

FavouriteButton favouriteNetworkButton(bool saved);
FavouriteButton favouriteAddressButton(bool saved);

} // namespace quillon
