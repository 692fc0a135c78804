// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace quillon {

class ContentScrollArea;
class TracesModel;

/// What the network of the selected interface still sees of it: for each trace what it is, what is
/// shown of it, and below it what can be done. Has it read while it is to be seen.
class TracesView : public QWidget
{
    Q_OBJECT

public:
    explicit TracesView(TracesModel &model, QWidget *parent = nullptr);

    void refresh();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Entry
    {
        QLabel *label;
        QLabel *value;
        QLabel *hint;
    };
    Entry makeEntry();

    TracesModel &m_model;
    QLabel *m_title;
    QLabel *m_line;
    QVBoxLayout *m_list;
    ContentScrollArea *m_area;
    QList<Entry> m_entries; ///< as many as were ever needed at once
};

} // namespace quillon
