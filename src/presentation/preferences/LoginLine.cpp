// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/LoginLine.h"

#include "base/Localized.h"

namespace quillon {

namespace {

using Kind = PreferencesLine::Kind;
using Entry = LoginItem::Entry;

PreferencesLine ofWantedStart(LoginItem::Desktop desktop)
{
    switch (desktop) {
    case LoginItem::Desktop::StartsPrograms:
        break;
    case LoginItem::Desktop::Ignores:
        return {
            Kind::Notice, localized("This desktop does not start programs at login by itself.")};
    case LoginItem::Desktop::Unknown:
        return {Kind::Hint,
            localized("Whether this desktop starts programs at login cannot be told from here.")};
    }
    return {};
}

} // namespace

PreferencesLine loginLine(
    bool isMissing, bool isOn, LoginItem::Entry entry, LoginItem::Desktop desktop)
{
    if (isMissing) {
        return {
            Kind::Notice, localized("The program that starts Quillon at login is not installed.")};
    }
    switch (entry) {
    // Either it failed, or another program was there meanwhile.
    case Entry::None:
        return isOn ? PreferencesLine{Kind::Failure,
                          localized("The autostart entry is missing or cannot be written. Switch "
                                    "this off and on again to have it made anew.")}
                    : PreferencesLine();
    case Entry::Ours:
        return isOn ? ofWantedStart(desktop)
                    : PreferencesLine{Kind::Failure,
                          localized("There still is an autostart entry. Switch this on and off "
                                    "again to have it taken out.")};
    case Entry::SwitchedOff:
        return isOn ? PreferencesLine{Kind::Notice,
                          localized("The desktop has Quillon switched off in its own list. Switch "
                                    "this off and on again to have it started.")}
                    : PreferencesLine();
    case Entry::OtherDesktop:
        return isOn ? PreferencesLine{Kind::Notice,
                          localized("The autostart entry is for other desktops only. Switch this "
                                    "off and on again to have it act here.")}
                    : PreferencesLine();
    case Entry::Foreign:
        return {isOn ? Kind::Hint : Kind::Notice,
            localized("There is an autostart entry of your own: it is left as it is.")};
    }
    return {};
}

} // namespace quillon
