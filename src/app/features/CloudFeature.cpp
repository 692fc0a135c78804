// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/CloudFeature.h"

#include "platform/Platform.h"

namespace quillon {

CloudFeature::CloudFeature(const Platform &platform, Notifier &notifier, RecordStore &store)
    : accounts(platform.settings)
    , mirror({store, platform.settings, platform.scheduler, platform.notifications})
    , settings(mirror, platform.scheduler)
    , sync({settings, platform.settings, platform.scheduler, platform.notifications, notifier})
    , watch({sync, accounts, platform.settings, platform.scheduler, platform.alerts})
    , import({store, platform.scheduler, platform.notifications, notifier})
    , signIn({platform.cloud, platform.secrets, platform.settings, platform.scheduler,
          platform.random, accounts})
    , passphrase({platform.cloud, platform.secrets, platform.scheduler, platform.random, accounts})
    , session({platform.cloud, platform.secrets, platform.settings, platform.scheduler,
          platform.random, platform.reachability, platform.powerSaving, accounts, mirror})
{
}

void CloudFeature::begin()
{
    signIn.clearUp();
    mirror.containerOpened();
    session.begin();
}

} // namespace quillon
