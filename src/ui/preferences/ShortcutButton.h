// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace quillon {

class ShortcutRecorder;

/// Shows the combination of a hot key, and records another one when it is pressed: until then, or
/// until it loses the keyboard, all keys are its own.
class ShortcutButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ShortcutButton(ShortcutRecorder &recorder);
    ~ShortcutButton() override;

    /// As wide for each of its texts, and wide enough for most combinations.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    int widestText() const;
    void refresh();
    void toggle();

    ShortcutRecorder &m_recorder;
    bool m_hasKeyboard = false;
};

} // namespace quillon
