// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/MenuItem.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

MenuItem::MenuItem(QString title)
    : m_title(std::move(title))
{
}

const MenuItem *MenuItem::itemAbove(int places) const
{
    if (!m_siblings) {
        return nullptr;
    }
    const auto self = std::find_if(m_siblings->begin(), m_siblings->end(),
        [this](const std::unique_ptr<MenuItem> &item) { return item.get() == this; });
    const auto index = std::distance(m_siblings->begin(), self) - places;
    if (index < 0 || index >= std::distance(m_siblings->begin(), m_siblings->end())) {
        return nullptr;
    }
    return m_siblings->at(static_cast<std::size_t>(index)).get();
}

MenuItem &MenuItem::append(QString title)
{
    MenuItem &item = *m_items.emplace_back(std::make_unique<MenuItem>(std::move(title)));
    // The root stands for the menu itself, which is no item.
    item.m_parent = m_siblings ? this : nullptr;
    item.m_siblings = &m_items;
    return item;
}

} // namespace quillon
