// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeButtons.h"

#include "base/Localized.h"

namespace quillon {

bool ChangeButtons::isPossible(ChangeRequest button) const
{
    switch (button) {
    case ChangeRequest::Randomize:
        return canRandomize && selected == Selected::Present;
    case ChangeRequest::Apply:
        return canApply;
    case ChangeRequest::Restore:
        return canRestore;
    case ChangeRequest::None:
        break;
    }
    return false;
}

bool ChangeButtons::isEnabled(ChangeRequest button) const
{
    // The one that is busy keeps the keyboard.
    return isChanging ? busy == button : isPossible(button);
}

QString ChangeButtons::whyNot(ChangeRequest button) const
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
    if (button == ChangeRequest::Apply) {
        return localized("The field holds no other address to apply");
    }
    if (button == ChangeRequest::Restore) {
        return hasFactoryAddress ? localized("The interface has its factory address")
                                 : localized("The interface has no factory address that is known");
    }
    return {};
}

} // namespace quillon
