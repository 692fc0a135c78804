// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/HistoryFeature.h"

#include "platform/Platform.h"

namespace quillon {

HistoryFeature::HistoryFeature(const Platform &platform)
    : store({platform.settings, platform.scheduler, platform.alerts}, platform.places.supportFolder)
    , history(store, platform.settings, platform.scheduler)
{
}

} // namespace quillon
