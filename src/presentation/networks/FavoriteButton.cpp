// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/FavoriteButton.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

FavoriteButton favoriteButton(bool saved, const QString &actionNow)
{
    return {
        .symbol = saved ? u"heart.fill"_s : u"heart"_s,
        .accessibilityText = actionNow,
        .removes = saved,
    };
}

} // namespace

FavoriteButton favoriteNetworkButton(bool saved)
{
    return favoriteButton(saved,
        saved ? localized("Remove Network from Favorites") : localized("Add Network to Favorites"));
}

FavoriteButton favoriteAddressButton(bool saved)
{
    return favoriteButton(saved,
        saved ? localized("Remove Address from Favorites") : localized("Add Address to Favorites"));
}

} // namespace quillon
