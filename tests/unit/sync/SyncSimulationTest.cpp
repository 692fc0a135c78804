// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SyncWorld.h"
#include "fakes/LogCapture.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(SyncSimulationTest, AllEndEqualAndNothingThatWasSavedIsLost)
{
    const LogCapture log; // of thousands of refused files
    QMap<QString, qint64> counts;
    for (quint64 seed = 1; seed <= 60; ++seed) {
        SyncWorld world(seed);
        for (int stretch = 0; stretch < 2; ++stretch) {
            for (int i = 0; i < 250; ++i) {
                world.step();
            }
            ASSERT_EQ(world.end(), QStringList()) << "seed " << seed << ", stretch " << stretch;
        }
        for (auto it = world.counts().begin(); it != world.counts().end(); ++it) {
            counts[it.key()] += *it;
        }
    }
    // Everything that can go wrong went wrong.
    for (const QString &what : {u"snapshots"_s, u"faults of requests"_s, u"kills within a round"_s,
             u"computers set back"_s, u"servers restored"_s, u"files damaged"_s, u"foreign files"_s,
             u"requests that came late"_s, u"computers offline for long"_s,
             u"edits that could not be saved"_s}) {
        EXPECT_GT(counts.value(what), 0) << what.toStdString();
    }
}

} // namespace
} // namespace quillon::test
