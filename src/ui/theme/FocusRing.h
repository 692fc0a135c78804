// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace quillon {

class Theme;

/// The one ring around what has the keyboard: 2 pixels wide, 2 pixels outside. It shows where the
/// keyboard went by itself, not what was clicked; fields, which take letters, always have it.
/// A widget rounder than a control says so in its property "ringRadius" (pixels).
class FocusRing : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application.
    explicit FocusRing(const Theme &theme);
    ~FocusRing() override;

    /// What it is around; null when it is hidden.
    QWidget *widget() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void surround(QWidget *widget);

    const Theme &m_theme;
    /// Its parent is the window of what it is around, and may take it along.
    QPointer<QFocusFrame> m_frame;
    bool m_keyboardUsedLast = false;
};

} // namespace quillon
