// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/FavouriteButton.h"

#include "base/Localized.h"

namespace quillon {

namespace {

FavouriteButton favouriteButton(bool saved, const char *add, const char *remove)
{
    return {
        .symbol = saved ? QStringLiteral("heart.fill") : QStringLiteral("heart"),
        .accessibilityText = localized(saved ? remove : add),
        .removes = saved,
    };
}

} // namespace

FavouriteButton favouriteNetworkButton(bool saved)
{
    return favouriteButton(saved, "Add Network to Favorites", "Remove Network from Favorites");
}

FavouriteButton favouriteAddressButton(bool saved)
{
    return favouriteButton(saved, "Add Address to Favorites", "Remove Address from Favorites");
}

} // namespace quillon
