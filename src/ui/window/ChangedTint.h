// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QVariantAnimation;

namespace quillon {

class Theme;

/// A tint over a field whose text has just changed, which fades. It lies over the field and takes
/// nothing from it: neither the pointer nor the contrast of its text.
class ChangedTint : public QWidget
{
    Q_OBJECT

public:
    ChangedTint(const Theme &theme, QWidget &field);

    /// Nothing on a desktop without motion.
    void flash();

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Theme &m_theme;
    QVariantAnimation *m_motion;
};

} // namespace quillon
