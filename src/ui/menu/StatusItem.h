// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class QSystemTrayIcon;

namespace quillon {

class Presence;
class MenuView;
class StatusMenuModel;
class Theme;
class TrayHost;

/// The status item with its menu. It is made only once a tray host is there: Qt decides at the
/// first tray call of a process, for good, by which protocol it speaks, and without a host chooses
/// the one that no current desktop shows. Main thread.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    StatusItem(StatusMenuModel &model, Presence &presence, TrayHost &host, const Theme &theme);
    ~StatusItem() override;

    /// Whether the user has it before them.
    bool isShown() const { return m_hostAvailable && m_icon != nullptr; }

Q_SIGNALS:
    void shownChanged(bool shown);

private:
    void hostChanged(bool available);
    void follow();
    void make();
    void drop();

    StatusMenuModel &m_model;
    Presence &m_presence;
    const Theme &m_theme;
    bool m_hostAvailable = false;
    bool m_hostWasThere = false;
    bool m_reportedShown = false;
    std::unique_ptr<MenuView> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};

} // namespace quillon
