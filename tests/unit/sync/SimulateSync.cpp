// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Lets computers and accounts go wrong for as many steps as it is told, one world after the other.
//   simulate-sync STEPS [FIRST-SEED [STEPS-OF-A-WORLD]]
// Prints what happened. Ends with 1 at the first world that does not come right, and names its
// seed.
#include "SyncWorld.h"

#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>

namespace {

void print(const QMap<QString, qint64> &counts)
{
    for (auto it = counts.begin(); it != counts.end(); ++it) {
        std::printf("%10lld %s\n", static_cast<long long>(*it), qUtf8Printable(it.key()));
    }
}

} // namespace

int main(int argc, char **argv)
{
    using namespace quillon::test;
    if (argc < 2) {
        std::fprintf(stderr, "usage: simulate-sync STEPS [FIRST-SEED [STEPS-OF-A-WORLD]]\n");
        return 2;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("quillon.sync=false"));
    const long long steps = std::atoll(argv[1]);
    quint64 seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    const int ofWorld = argc > 3 ? std::atoi(argv[3]) : 2000;
    constexpr int stretch = 500;
    QMap<QString, qint64> counts;
    int worlds = 0;
    for (long long done = 0; done < steps; ++seed, ++worlds) {
        SyncWorld world(seed);
        for (int ofThis = 0; ofThis < ofWorld && done < steps; ofThis += stretch) {
            for (int i = 0; i < stretch; ++i, ++done) {
                world.step();
            }
            const QStringList problems = world.end();
            if (!problems.isEmpty()) {
                std::printf("seed %llu, step %d: %s\n", static_cast<unsigned long long>(seed),
                    ofThis + stretch, qUtf8Printable(problems.join(QStringLiteral("; "))));
                print(world.counts());
                return 1;
            }
        }
        for (auto it = world.counts().begin(); it != world.counts().end(); ++it) {
            counts[it.key()] += *it;
        }
    }
    std::printf("%lld steps in %d worlds: all came right\n", steps, worlds);
    print(counts);
    return 0;
}
