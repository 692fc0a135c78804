// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/FavoriteButton.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

FavoriteButton favoriteButton(bool saved, const char *add, const char *remove)
{
    return {
        .symbol = saved ? u"heart.fill"_s : u"heart"_s,
        .accessibilityText = localized(saved ? remove : add),
        .removes = saved,
    };
}

} // namespace

FavoriteButton favoriteNetworkButton(bool saved)
{
    return favoriteButton(saved, "Add Network to Favorites", "Remove Network from Favorites");
}

FavoriteButton favoriteAddressButton(bool saved)
{
    return favoriteButton(saved, "Add Address to Favorites", "Remove Address from Favorites");
}

} // namespace quillon
