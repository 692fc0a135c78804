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
        {General, localized("GeneralPreferences_en"), localized("General"), u"gearshape"_s},
        {Advanced, localized("AdvancedPreferences_en"), localized("Advanced"),
            u"slider.vertical.3"_s},
        {Display, localized("DisplayPreferences_en"), localized("Display"), u"display"_s},
        {VendorData, localized("VendorPreferences_en"), localized("Vendor Data"), u"building.2"_s},
        {Rules, localized("RulesPreferences_en"), localized("Rules"), u"pencil"_s},
        {Updates, localized("UpdatePreferences_en"), localized("Updates"),
            u"arrow.triangle.2.circlepath"_s},
        {About, localized("AboutPreferences_en"), localized("About"), u"info.circle"_s},
    };
}

} // namespace quillon
