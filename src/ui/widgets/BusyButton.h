// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"

#include <QPushButton>

#include <memory>

class QVariantAnimation;

namespace quillon {

/// A button that says while its work is under way: a turning ring stands instead of its picture,
/// and a word instead of its own where one is given. It keeps its width and the keyboard, and does
/// nothing meanwhile; to assistive technology it is busy, and disabled. It keeps the keyboard also
/// when it cannot be used for a while: a key that was meant for it never goes to another control.
class BusyButton : public QPushButton
{
    Q_OBJECT

public:
    /// `ink` is that of the ring.
    BusyButton(const Theme &theme, Theme::Ink ink, const QString &text, QWidget *parent = nullptr);

    /// What stands on it while it is busy; "" for the ring alone.
    void setBusyText(const QString &text);
    /// What it is called meanwhile; without it, what stands on it.
    void setBusyName(const QString &name) { m_busyName = name; }
    void setBusy(bool busy);
    bool isBusy() const { return m_isBusy; }
    /// Instead of setEnabled(). With the keyboard on it, a button that cannot be used looks and
    /// acts as if it were disabled, and is disabled when the keyboard has gone elsewhere.
    void setUsable(bool usable);
    bool isUsable() const { return isEnabled() && !m_isRefusing; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void initStyleOption(QStyleOptionButton *option) const override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// Its picture and text at one time.
    struct Face
    {
        QString text;
        QIcon icon;
    };

    bool takesPresses() const { return !m_isBusy && !m_isRefusing; }
    int widthOf(const Face &face) const;
    void turn();
    void stopRefusing();

    const Theme &m_theme;
    QVariantAnimation *m_motion;
    std::shared_ptr<qreal> m_turned; ///< by how many degrees the ring is; shared with its picture
    Face m_idle;                     ///< while it is busy
    Face m_busy;
    QString m_idleName;
    QString m_busyName;
    bool m_isBusy = false;
    bool m_isRefusing = false; ///< it cannot be used and has the keyboard
};

} // namespace quillon
