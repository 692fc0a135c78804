// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"

namespace quillon {

class ReadMeModel;

/// Installs the helper, and is busy as long as that takes.
class InstallHelperButton : public BusyButton
{
    Q_OBJECT

public:
    InstallHelperButton(ReadMeModel &model, const Theme &theme, Theme::Ink ink);
};

} // namespace quillon
