// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SignalHistory.h"

#include "networks/WiFiRecord.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

WiFiRecord at(const QString &signal, const QString &noise, const QString &network = u"Home"_s)
{
    return {.ssid = network, .noise = noise, .rssi = signal};
}

TEST(SignalHistoryTest, KeepsWhatWasLookedAtInOrder)
{
    SignalHistory history;
    history.add(at(u"-52 dBm"_s, u"-92 dBm"_s), 1s);
    history.add(at(u"-60 dBm"_s, u"-91 dBm"_s), 4s);
    EXPECT_EQ(history.samples(), (QList<SignalHistory::Sample>{{1s, -52, -92}, {4s, -60, -91}}));
}

TEST(SignalHistoryTest, HasNoLevelWhereTheRadioTellsNone)
{
    SignalHistory history;
    history.add(at(u"-52 dBm"_s, u"0 dBm"_s), 1s);
    history.add(at({}, u"far"_s), 4s);
    EXPECT_EQ(history.samples(),
        (QList<SignalHistory::Sample>{{1s, -52, std::nullopt}, {4s, std::nullopt, std::nullopt}}));
}

TEST(SignalHistoryTest, GoesBackAFewMinutes)
{
    SignalHistory history;
    for (auto time = 0s; time <= 900s; time += 3s) {
        history.add(at(u"-52 dBm"_s, u"-92 dBm"_s), time);
    }
    EXPECT_EQ(history.samples().first().time, 900s - SignalHistory::length);
    EXPECT_EQ(history.samples().last().time, 900s);
}

TEST(SignalHistoryTest, AnotherNetworkOrNoneBeginsAnew)
{
    SignalHistory history;
    history.add(at(u"-52 dBm"_s, u"-92 dBm"_s), 1s);
    history.add(at(u"-70 dBm"_s, u"-92 dBm"_s, u"Office"_s), 4s);
    EXPECT_EQ(history.samples().size(), 1);
    history.add({}, 7s);
    EXPECT_TRUE(history.samples().isEmpty());
}

} // namespace
} // namespace quillon::test
