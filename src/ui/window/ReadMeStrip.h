// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QPushButton;

namespace quillon {

class Popover;
class ReadMeModel;
class Theme;

/// Says that the helper is not installed, as long as it is not. Its label opens the read-me
/// popover.
class ReadMeStrip : public QFrame
{
    Q_OBJECT

public:
    ReadMeStrip(ReadMeModel &model, const Theme &theme, QWidget *parent = nullptr);
    ~ReadMeStrip() override;

private:
    void makeHint();
    void makePopover();
    void refresh();
    void resetStyle();

    ReadMeModel &m_model;
    const Theme &m_theme;
    QPushButton *m_hint;
    Popover *m_popover = nullptr; ///< made when it is opened for the first time
};

} // namespace quillon
