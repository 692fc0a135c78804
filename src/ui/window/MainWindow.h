// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QKeySequence;
class QVBoxLayout;

namespace quillon {

class AddressCard;
class DetailsArea;
class EmptyState;
class FactsCard;
class Footer;
class InterfaceHeader;
class MainWindowModel;
class Presence;
class ReadMeModel;
class TaskBar;
class Theme;

/// The window on one selected interface. It mirrors MainWindowModel and calls it for what the user
/// does, and follows Presence; it decides nothing. Main thread.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        MainWindowModel &window;
        ReadMeModel &readMe;
        Presence &presence;
    };

    MainWindow(const Models &models, const Theme &theme, TaskBar &taskBar);
    ~MainWindow() override;

    /// Whether the program stays within reach once the window is closed. Then closing only hides
    /// it; otherwise closing is the quit command, so that no program runs that nobody can reach.
    void setReachableWhenClosed(bool reachable) { m_reachableWhenClosed = reachable; }

    /// Puts the button that opens the File menu beside the header.
    void addMenuButton(QWidget *button);
    AddressCard &addressCard() const { return *m_addressCard; }
    /// What is known of the selected interface.
    FactsCard &facts() const { return *m_facts; }
    /// For the keyboard footer and header come after everything that was added so far.
    void putFooterAndHeaderLast();
    /// `keys` anywhere in the window, as long as no popover is open.
    void addShortcut(const QKeySequence &keys, const QString &text, std::function<void()> act);
    /// Puts the keyboard where the address that was put into the field is applied.
    void focusApply();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    /// The window can be moved by its ground.
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void makeShortcuts();
    void connectModel();
    void connectPresence();
    void refresh();
    void bringUp();
    void minimize();
    void followTaskBar();
    void drawIcon();
    void fitScreen();

    MainWindowModel &m_model;
    Presence &m_presence;
    TaskBar &m_taskBar;
    bool m_reachableWhenClosed = false;
    bool m_minimizesOncePainted = false;
    bool m_fieldHadFocus = false;

    InterfaceHeader *m_header;
    AddressCard *m_addressCard;
    FactsCard *m_facts;
    EmptyState *m_noInterface; ///< in place of address and facts
    DetailsArea *m_area;
    Footer *m_footer;
    QVBoxLayout *m_column;
};

} // namespace quillon
