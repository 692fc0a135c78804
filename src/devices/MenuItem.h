// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace quillon {

/// What the item actions know of a menu: titles and places. Actions find their interface by them.
/// An item that was made alone, not appended, stands for the menu itself.
class MenuItem
{
public:
    explicit MenuItem(QString title);
    MenuItem(const MenuItem &) = delete;
    MenuItem &operator=(const MenuItem &) = delete;

    const QString &title() const { return m_title; }
    /// The item whose submenu this one stands in; null in the menu itself.
    const MenuItem *parentItem() const { return m_parent; }
    /// The item `places` above this one in the same menu; null when there is none.
    const MenuItem *itemAbove(int places) const;

    MenuItem &append(QString title);
    const std::vector<std::unique_ptr<MenuItem>> &items() const { return m_items; }

private:
    QString m_title;
    const MenuItem *m_parent = nullptr;
    const std::vector<std::unique_ptr<MenuItem>> *m_siblings = nullptr;
    std::vector<std::unique_ptr<MenuItem>> m_items;
};

/// Stands between a label and its value in menu titles: blank, U+00B7 middle dot, blank.
inline const QString titleSeparator = QStringLiteral(" \u00B7 ");

} // namespace quillon
