// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/menu/InterfaceSections.h"

#include <QList>
#include <QObject>

namespace quillon {

class MenuItem;

/// A menu of the program: fixed entries, then a section per interface. Rebuilt when it is about to
/// open, and while it is closed when what it shows has changed; as long as it stays open only
/// countdowns change, so that nothing moves under the pointer. Main thread.
class MenuModel : public QObject
{
    Q_OBJECT

public:
    using Collaborators = MenuCollaborators;

    explicit MenuModel(const Collaborators &collaborators);

    const std::vector<MenuEntry> &entries() const { return m_entries; }

    /// The menu is about to open: reads the interfaces anew, then rebuilds.
    void menuWillOpen();
    void menuDidClose();
    void menuNeedsUpdate();
    /// A countdown ticked: retitles its entry while the menu is open.
    void showCountdown(const QString &device, const QString &text);

    /// The user chose the entry at `path`: its index in the menu, then in each submenu. A path or
    /// an entry that is not there, or has no action, is ignored.
    void activate(const QList<int> &path);

Q_SIGNALS:
    /// entries() is not what it was.
    void changed();
    /// Only the title of the entry at `index` is not what it was.
    void retitled(int index);
    /// Between these two it can be seen.
    void willOpen();
    void didClose();
    /// The menu is being rebuilt; lists of devices elsewhere follow first.
    void rebuildStarted();

protected:
    virtual std::vector<MenuEntry> entriesAbove() const = 0;
    virtual std::vector<MenuEntry> entriesBelow() const = 0;
    /// An entry that leads to `destination`; disabled while there is no such window.
    MenuEntry entryTo(Destination destination, const QString &key, const QString &title) const;

private:
    void rebuild();
    void act(const MenuEntry &entry, const MenuItem &sender);

    Collaborators m_deps;
    std::vector<MenuEntry> m_entries;
    bool m_isOpen = false;
    bool m_isStale = false; ///< something changed while it was open
};

} // namespace quillon
