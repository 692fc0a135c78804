// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace quillon {

/// A word in a pill: "Changed" and "Active" on a tint, "Hardware" and "Login" in neutral. On a
/// tinted row its ground is that of a card. It is decoration to assistive technology unless it is
/// given an accessible name: what it says belongs into the description of what it stands beside.
class Badge : public QLabel
{
    Q_OBJECT

public:
    enum class Tone
    {
        Tint,
        Neutral,
    };

    explicit Badge(const QString &text, Tone tone = Tone::Tint, QWidget *parent = nullptr);

    void setTone(Tone tone);
    void setOnTint(bool onTint);
};

} // namespace quillon
