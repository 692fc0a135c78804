// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

/// The panes of the preferences, in the order of the toolbar.
enum class PreferencesPane
{
    General,
    Advanced,
    Display,
    VendorData,
    Rules,
    Updates,
    About,
};

/// What a pane is called and looks like in the toolbar.
struct PreferencesPaneInfo
{
    PreferencesPane pane;
    QString identifier; ///< names it in broadcasts; from the table of texts, as the label
    QString label;      ///< in the user's language; also the window's title
    QString symbol;     ///< the toolbar's image

    bool operator==(const PreferencesPaneInfo &) const = default;
};

/// All panes, in order.
QList<PreferencesPaneInfo> preferencesPanes();

} // namespace quillon
