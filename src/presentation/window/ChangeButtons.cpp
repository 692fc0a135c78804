// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeButtons.h"

#include "base/Localized.h"

namespace quillon {

bool ChangeButtons::isPossible(ChangeButton button) const
{
    switch (button) {
    case ChangeButton::Randomize:
        return canRandomize && selected == Selected::Present;
    case ChangeButton::Apply:
        return canApply;
    case ChangeButton::Restore:
        return canRestore;
    case ChangeButton::None:
        break;
    }
    return false;
}

bool ChangeButtons::isEnabled(ChangeButton button) const
{
    // The one that is busy keeps the keyboard.
    return isChanging ? busy == button : isPossible(button);
}

QString ChangeButtons::whyNot(ChangeButton button) const
{
    if (isEnabled(button) && busy != button) {
        return {};
    }
    if (isChanging) {
        return localized("The address is being changed");
    }
    switch (selected) {
    case Selected::None:
        return localized("No interface is selected: there is none whose address can be changed");
    case Selected::Gone:
        return localized("The selected interface is not there");
    case Selected::Present:
        break;
    }
    if (!isHelperInstalled) {
        return localized("The helper tool is not installed");
    }
    if (button == ChangeButton::Apply) {
        return localized("The field holds no other address to apply");
    }
    if (button == ChangeButton::Restore) {
        return hasFactoryAddress ? localized("The interface has its factory address")
                                 : localized("The interface has no factory address that is known");
    }
    return {};
}

} // namespace quillon
