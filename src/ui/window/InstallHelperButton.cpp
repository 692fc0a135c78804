// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/InstallHelperButton.h"

#include "base/Localized.h"
#include "presentation/window/ReadMeModel.h"
#include "ui/widgets/PlainText.h"

namespace quillon {

InstallHelperButton::InstallHelperButton(ReadMeModel &model, const Theme &theme, Theme::Ink ink)
    : BusyButton(theme, ink, localized("&Install Helper"))
{
    setBusyText(localized("Installing…"));
    setToolTip(plainToolTip(localized("Asks for an administrator's password")));
    setAccessibleName(localized("Install helper"));
    setAccessibleDescription(localized("Asks for an administrator's password"));
    setAutoDefault(true);
    setBusy(model.state().installing);
    connect(this, &QPushButton::clicked, &model, &ReadMeModel::installHelper);
    connect(
        &model, &ReadMeModel::changed, this, [this, &model] { setBusy(model.state().installing); });
}

} // namespace quillon
