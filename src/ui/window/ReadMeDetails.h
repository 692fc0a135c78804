// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

class ReadMeModel;
class Theme;

/// What the helper is for, and the button that installs it.
class ReadMeDetails : public QWidget
{
    Q_OBJECT

public:
    ReadMeDetails(ReadMeModel &model, const Theme &theme);
};

} // namespace quillon
