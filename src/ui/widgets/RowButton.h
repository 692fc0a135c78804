// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"

#include <QAbstractButton>

#include <optional>

namespace quillon {

/// A row of a card: its label, a value, and a chevron where a popover says more. To the keyboard
/// and to assistive technology it is one button named "Network, Harbor Café"; without a popover it
/// is a text that takes no focus. The labels of rows in one parent are equally wide. The context
/// menu and Ctrl+C copy the value. A value that is too wide is left out in its middle, and is the
/// tool tip then.
class RowButton : public QAbstractButton
{
    Q_OBJECT
    /// Whether its popover is open; set by the popover.
    Q_PROPERTY(bool open READ isOpen WRITE setOpen)

public:
    enum class ValueLook
    {
        Text,
        Address, ///< fixed-width digits
        Muted,   ///< what is said in place of a value
    };
    /// The dot before a value that says a state: full or a ring, as color alone says nothing.
    struct Dot
    {
        Theme::Ink ink = Theme::Ink::Muted;
        bool isFull = false;

        bool operator==(const Dot &) const = default;
    };

    RowButton(const Theme &theme, const QString &label, QWidget *parent = nullptr);

    const QString &label() const { return m_label; }
    /// The text as it came: it may be from outside.
    const QString &value() const { return m_value; }
    /// An empty value is shown as a dash.
    void setValue(const QString &value, ValueLook look = ValueLook::Text);
    void setDot(const std::optional<Dot> &dot);
    /// With a popover it is a button. It has one unless it is said that it has none.
    void setHasPopover(bool hasPopover);
    bool hasPopover() const { return m_hasPopover; }
    bool isOpen() const { return m_open; }
    void setOpen(bool open);
    /// Takes the highlight away that an open popover or the pointer gave it.
    void resetEmphasis();
    /// Said instead of the value on hovering; empty for the value, where it is cut.
    void setRowToolTip(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool hitButton(const QPoint &position) const override;

private:
    void takeRole();
    void describe();
    int labelWidth() const;
    int ownLabelWidth() const;
    QRect valueRect() const;
    QFont valueFont() const;
    QString shownValue() const;

    const Theme &m_theme;
    QString m_label;
    mutable std::optional<int> m_labelWidth; ///< in pixels, until the font changes
    QString m_value;
    QString m_toolTip;
    ValueLook m_look = ValueLook::Text;
    std::optional<Dot> m_dot;
    bool m_hasPopover = true;
    bool m_open = false;
    bool m_isHighlighted = false;
};

} // namespace quillon
