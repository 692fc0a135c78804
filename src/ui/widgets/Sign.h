// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"

#include <QWidget>

namespace quillon {

/// A picture that repeats what the text beside it says. It follows the theme. It is no picture to
/// assistive technology, which would ask for its name.
class Sign : public QWidget
{
    Q_OBJECT

public:
    /// `size` in device-independent pixels.
    Sign(const Theme &theme, int size, QWidget *parent = nullptr);

    /// `icon` is a name of the theme's resources.
    void setSign(const QString &icon, Theme::Ink ink);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    QString m_name;
    Theme::Ink m_ink = Theme::Ink::Text;
    QIcon m_icon;
};

} // namespace quillon
