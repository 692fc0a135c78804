// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QGridLayout;
class QLabel;

namespace quillon {

class MainWindowModel;

/// What is known of the selected interface, in rows: its addresses, whether the address in use is
/// the factory address, and what others add.
class InterfaceDetails : public QFrame
{
    Q_OBJECT

public:
    explicit InterfaceDetails(MainWindowModel &model, QWidget *parent = nullptr);

    /// What stands beside the value of a row, if anything.
    struct Beside
    {
        QWidget *before = nullptr;
        QWidget *end = nullptr; ///< at the end of the row
    };
    /// Adds a row under the others. To a screen reader `caption` is the value's name.
    void addRow(const QString &caption, QWidget *value, const Beside &beside);
    void addRow(const QString &caption, QWidget *value) { addRow(caption, value, Beside()); }
    /// Adds a row without a name, over the whole width. What is returned hides and shows it.
    QWidget *addWideRow(QWidget *content);
    /// A value that can be selected and copied.
    static QLabel *makeValue(const QString &name);
    /// An empty text is shown as a dash.
    static void showValue(QLabel &label, const QString &text);

    void refresh();

private:
    MainWindowModel &m_model;
    QGridLayout *m_grid;
    QLabel *m_current;
    QLabel *m_factory;
    QLabel *m_ipAddress;
    QLabel *m_changed;
};

} // namespace quillon
