// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ReadMeModel.h"

#include "base/Localized.h"
#include "helperlink/XPCMethods.h"

namespace quillon {

ReadMeModel::ReadMeModel(XPCMethods &helper)
    : m_helper(helper)
{
}

QString ReadMeModel::text()
{
    return localized(
        "Changing an address needs administrator rights, which Quillon itself never has. A small "
        "helper makes the change and nothing else. Installing it asks for an administrator's "
        "password once; Preferences › Advanced removes it again.");
}

void ReadMeModel::setHelperInstalled(bool installed)
{
    m_state.update([&](State &state) {
        state.visible = !installed;
        state.popoverShown = state.popoverShown && !installed;
    });
}

void ReadMeModel::setInstalling(bool installing)
{
    m_state.update([&](State &state) { state.installing = installing; });
}

void ReadMeModel::readMeReset()
{
    Q_EMIT styleReset();
}

void ReadMeModel::installHelper()
{
    if (!m_state->installing) {
        m_helper.installHelper();
    }
}

void ReadMeModel::toggleReadMePopover()
{
    m_state.update([](State &state) { state.popoverShown = !state.popoverShown; });
}

void ReadMeModel::popoverWillClose()
{
    m_state.update([](State &state) { state.popoverShown = false; });
}

} // namespace quillon
