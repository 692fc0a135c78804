// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces of the program that are measured within one process.
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/settings/PlistSettingsStore.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

using namespace quillon;

/// A machine with as many ports as wanted.
class ManyPorts : public NetworkHost
{
public:
    explicit ManyPorts(int count)
    {
        for (int i = 0; i < count; ++i) {
            const QString address = u"02:00:00:00:%1:%2"_s.arg(i / 256, 2, 16, QLatin1Char('0'))
                                        .arg(i % 256, 2, 16, QLatin1Char('0'));
            m_ports.append({u"Ethernet"_s, u"enp%1s0"_s.arg(i), address,
                {u"192.0.2.1"_s, address, u"active"_s}});
        }
    }
    std::optional<QList<PortRecord>> ports() override { return m_ports; }
    InterfaceInfo info(const QString &) override { return {}; }

private:
    QList<PortRecord> m_ports;
};

void readAllInterfaces(benchmark::State &state)
{
    NetlinkHost host;
    qsizetype kept = 0;
    for (auto _ : state) {
        kept = host.ports().value().size();
    }
    state.counters["interfaces"] = static_cast<double>(kept);
}
BENCHMARK(readAllInterfaces)->Unit(benchmark::kMicrosecond);

void readOneInterface(benchmark::State &state)
{
    NetlinkHost host;
    for (auto _ : state) {
        benchmark::DoNotOptimize(host.info(u"enp1s0"_s));
    }
}
BENCHMARK(readOneInterface)->Unit(benchmark::kMicrosecond);

void makeRandomAddress(benchmark::State &state)
{
    GetrandomSource random;
    for (auto _ : state) {
        benchmark::DoNotOptimize(randomAddressText(random.bytes(6)));
    }
}
BENCHMARK(makeRandomAddress)->Unit(benchmark::kMicrosecond);

void refreshTable(benchmark::State &state)
{
    const QTemporaryDir folder;
    QtScheduler scheduler;
    PlistSettingsStore settings(folder.filePath(u"settings.plist"_s), scheduler, {});
    ManyPorts host(static_cast<int>(state.range(0)));
    const GetifaddrsAddresses addresses;
    DeviceTable table(settings, host, addresses);
    for (auto _ : state) {
        table.updateNetWorkInterfaces();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(refreshTable)
    ->Unit(benchmark::kMillisecond)
    ->Arg(4)
    ->Arg(125)
    ->Arg(250)
    ->Arg(500)
    ->Arg(1000)
    ->Complexity();

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
