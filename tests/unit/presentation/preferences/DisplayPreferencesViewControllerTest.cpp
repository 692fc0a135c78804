// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/DisplayPreferencesViewController.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(DisplayPreferencesViewControllerTest, EverySwitchIsItsSetting)
{
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    DisplayPreferencesViewController pane(settings);
    pane.lowerCaseHEX.set(true);
    EXPECT_TRUE(settings.getBool(keys::lowerCaseHEX));
    EXPECT_FALSE(settings.getBool(keys::shouldUpdateExternalIP));
    pane.shouldUpdateExternalIP.set(true);
    EXPECT_TRUE(settings.getBool(keys::shouldUpdateExternalIP));
    settings.setBool(keys::lowerCaseHEX, false);
    settings.set(keys::shouldUpdateExternalIP, QVariant());
    EXPECT_FALSE(pane.lowerCaseHEX.state().isOn);
    EXPECT_FALSE(pane.shouldUpdateExternalIP.state().isOn);
}

} // namespace
} // namespace quillon::test
