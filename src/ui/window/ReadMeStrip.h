// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"

#include <QFrame>

class QPushButton;

namespace quillon {

class BusyButton;
class Popover;
class ReadMeModel;

/// Says that the helper is missing, and has it installed. The hint itself opens what explains it.
class ReadMeStrip : public QFrame
{
    Q_OBJECT

public:
    ReadMeStrip(ReadMeModel &model, const Theme &theme, QWidget *parent = nullptr);
    ~ReadMeStrip() override;

private:
    BusyButton *makeInstall(Theme::Ink ink);
    void makePopover();
    void refresh();
    void resetStyle();

    ReadMeModel &m_model;
    const Theme &m_theme;
    QPushButton *m_hint;
    BusyButton *m_install;
    BusyButton *m_installExplained;
    Popover *m_popover;
};

} // namespace quillon
