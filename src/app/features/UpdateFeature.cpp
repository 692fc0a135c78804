// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/UpdateFeature.h"

#include "platform/Platform.h"

namespace quillon {

UpdateFeature::UpdateFeature(const Platform &platform, Notifier &notifier)
    : updater({platform.settings, platform.scheduler, platform.http, platform.reachability,
          notifier, platform.softwareCenter,
          {platform.places.updateFeed, platform.places.updateKey, platform.places.version,
              platform.places.areUpdatesLeftToSystem}})
    , pane(updater, platform.places.version)
{
}

} // namespace quillon
