// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace quillon {

class MainWindowModel;
class Theme;

/// The hint that the helper is missing, with the button that installs it and an explanation on
/// demand.
class ReadMeHint : public QFrame
{
    Q_OBJECT

public:
    ReadMeHint(MainWindowModel &model, const Theme &theme, QWidget *parent = nullptr);

    void refresh();

private:
    void showExplanation(bool shown);
    void resetStyle();

    MainWindowModel &m_model;
    QLabel *m_hint;
    QLabel *m_explanation;
    QPushButton *m_install;
    QPushButton *m_disclose;
};

} // namespace quillon
