// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quillon {

class AddressField;
class DetailsArea;
class InterfaceDetails;
class InterfaceHeader;
class MainWindowModel;
class Presence;
class ReadMeHint;
class TaskBar;
class Theme;

/// The window on one selected interface. It mirrors MainWindowModel and calls it for what the user
/// does, and follows Presence; it decides nothing. Main thread.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    MainWindow(MainWindowModel &model, Presence &presence, const Theme &theme, TaskBar &taskBar);

    /// Whether the program stays within reach once the window is closed. Then closing only hides
    /// it; otherwise closing is the quit command, so that no program runs that nobody can reach.
    void setReachableWhenClosed(bool reachable) { m_reachableWhenClosed = reachable; }

    /// Puts the button that opens the File menu beside the header.
    void addMenuButton(QWidget *button);
    /// Puts a section under the buttons, where the next address is chosen.
    void addChoice(QWidget *section);
    /// Puts a section under the details, in the order of the calls.
    void addDetails(QWidget *section);
    /// What is known of the selected interface; rows can be added.
    InterfaceDetails &details() { return *m_details; }

protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    /// The window can be moved by its ground.
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeAddressCard();
    QWidget *makeButtons();
    void makeShortcuts();
    void connectModel();
    void connectPresence();
    void refresh();
    void bringUp();
    void minimize();
    void followTaskBar();
    void drawIcon();
    void fitScreen();
    bool isGround(const QPoint &place) const;

    MainWindowModel &m_model;
    Presence &m_presence;
    const Theme &m_theme;
    TaskBar &m_taskBar;
    bool m_reachableWhenClosed = false;
    bool m_minimizesOncePainted = false;

    InterfaceHeader *m_header;
    AddressField *m_field;
    QPushButton *m_apply;
    QPushButton *m_randomize;
    QPushButton *m_restore;
    ReadMeHint *m_readMe;
    InterfaceDetails *m_details;
    DetailsArea *m_area;
    QLabel *m_version;
    QVBoxLayout *m_column;
    QHBoxLayout *m_top;
};

} // namespace quillon
