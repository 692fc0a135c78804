// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolButton>

namespace quillon {

class Theme;

/// The heart that keeps something among the favorites: an outline, or filled when it is one. What a
/// click does is its name and its tool tip.
class HeartButton : public QToolButton
{
    Q_OBJECT

public:
    explicit HeartButton(const Theme &theme, QWidget *parent = nullptr);

    /// `action` is what a click does now, as "Remove Address from Favorites".
    void setFavorite(bool isFavorite, const QString &action);
    bool isFavorite() const { return m_isFavorite; }

private:
    const Theme &m_theme;
    bool m_isFavorite = false;
};

} // namespace quillon
