// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// A heart that keeps something in a saved list or takes it out again.
struct FavoriteButton
{
    QString symbol; ///< "heart.fill" when it is saved, else "heart"
    QString accessibilityText;
    bool removes = false; ///< what choosing the button does: remove, else add

    bool operator==(const FavoriteButton &) const = default;
};

FavoriteButton favoriteNetworkButton(bool saved);
FavoriteButton favoriteAddressButton(bool saved);

} // namespace quillon
