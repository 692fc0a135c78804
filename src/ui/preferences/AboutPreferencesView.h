// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

class AboutPreferencesViewController;
class InlineLine;
class Theme;

/// What the program is.
class AboutPreferencesView : public QWidget
{
    Q_OBJECT

public:
    AboutPreferencesView(AboutPreferencesViewController &controller, const Theme &theme);

private:
    void refresh();

    AboutPreferencesViewController &m_controller;
    InlineLine *m_failure;
};

} // namespace quillon
