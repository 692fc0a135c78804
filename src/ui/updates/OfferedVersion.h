// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace quillon {

class ContentScrollArea;
class UpdatePreferencesViewController;

/// The version that can be had, what is new in it as plain text, and the way there. Hidden while
/// there is none.
class OfferedVersion : public QFrame
{
    Q_OBJECT

public:
    explicit OfferedVersion(UpdatePreferencesViewController &model, QWidget *parent = nullptr);

    void refresh();

private:
    UpdatePreferencesViewController &m_model;
    QLabel *m_title;
    QLabel *m_details;
    QLabel *m_page;
    QLabel *m_notes;
    ContentScrollArea *m_notesArea;
    QPushButton *m_open;
};

} // namespace quillon
