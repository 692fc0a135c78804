// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace quillon {

class MainWindowModel;

/// The device selection button: mirrors the model's titles. What is
/// selected after the user's choice is what the model says then.
class InterfaceSelector : public QComboBox
{
    Q_OBJECT

public:
    explicit InterfaceSelector(MainWindowModel &model, QWidget *parent = nullptr);

    /// No wider than it may become: what is too long is elided.
    QSize minimumSizeHint() const override;
    void refresh();
    void showPopup() override;
    void hidePopup() override;
    /// Takes the look of a button that is pointed at or pressed away until it is pointed at anew.
    void resetEmphasis();

private:
    MainWindowModel &m_model;
};

} // namespace quillon
