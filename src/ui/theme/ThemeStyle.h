// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace quillon {

/// Fusion, with three habits of its own: letters are underlined only while Alt is held, no dotted
/// frame is drawn around what has the focus, as a ring shows it (FocusRing), and the wheel never
/// chooses in a pop-up: who scrolls a pane would change what the pointer happens to be on.
class ThemeStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ThemeStyle();

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *returnData) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;

protected:
    /// Watches Alt and the wheel in all windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setAltHeld(bool held);

    bool m_altHeld = false;
};

} // namespace quillon
