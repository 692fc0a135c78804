// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/updates/UpdatePreferencesViewController.h"
#include "updates/Updater.h"

namespace quillon {

class Notifier;
struct Platform;

/// New versions, put together: who looks for them, and what the preferences show of it.
struct UpdateFeature
{
    UpdateFeature(const Platform &platform, Notifier &notifier);

    Updater updater;
    UpdatePreferencesViewController pane;
};

} // namespace quillon
