// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/PreferencesPane.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

QList<PreferencesPaneInfo> preferencesPanes()
{
    using enum PreferencesPane;
    return {
        {General, u"GeneralPreferences_en"_s, localized("General"), u"gearshape"_s},
        {Advanced, u"AdvancedPreferences_en"_s, localized("Advanced"), u"slider.vertical.3"_s},
        {Display, u"DisplayPreferences_en"_s, localized("Display"), u"display"_s},
        {VendorData, u"VendorPreferences_en"_s, localized("Vendor Data"), u"building.2"_s},
        {Rules, u"RulesPreferences_en"_s, localized("Rules"), u"pencil"_s},
        {Updates, u"UpdatePreferences_en"_s, localized("Updates"),
            u"arrow.triangle.2.circlepath"_s},
        {About, u"AboutPreferences_en"_s, localized("About"), u"info.circle"_s},
    };
}

} // namespace quillon
