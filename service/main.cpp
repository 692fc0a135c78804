// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "contract/SdBus.h"
#include "service/PollLoop.h"
#include "service/Service.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <optional>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr auto idleTime = 60s;

// Serves until nobody asked for `idleTime`, or the bus is gone.
void serve(quillon::service::PollLoop &loop, const quillon::service::Service &service,
    const bool &sessionEnded)
{
    auto lastRequest = std::chrono::steady_clock::now();
    unsigned requests = 0;
    while (!sessionEnded) {
        const auto now = std::chrono::steady_clock::now();
        if (service.requests() != requests || service.isBusy()) {
            requests = service.requests();
            lastRequest = now;
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(lastRequest + idleTime - now);
        if (left <= 0ms) {
            return;
        }
        loop.waitOnce(left);
    }
}

// A request from now on starts a new service; those that came before are still answered here.
void finish(quillon::service::PollLoop &loop, sdbus::IConnection &connection,
    const quillon::service::Service &service, const bool &sessionEnded)
{
    connection.releaseName(quillon::bus::Name{quillon::contract::serviceName});
    loop.processBuses();
    while (service.isBusy() && !sessionEnded) {
        loop.waitOnce(std::nullopt);
    }
}

} // namespace

int main()
{
    if (getuid() == 0 || geteuid() == 0) {
        std::fprintf(stderr, "This service never runs as root\n");
        return 1;
    }
    // A tool that closes its output early must not end us.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        quillon::service::PollLoop loop;
        const auto bus = sdbus::createSessionBusConnection();
        quillon::service::Service service(loop, *bus,
            quillon::service::InstalledHelper({QUILLON_SEED_TOOL, QUILLON_INSTALLED_TOOL,
                QUILLON_PACKAGED_TOOL, QUILLON_PACKAGED_UNIT}));
        bool sessionEnded = false;
        loop.add(*bus, [&sessionEnded] { sessionEnded = true; });
        serve(loop, service, sessionEnded);
        if (!sessionEnded) {
            finish(loop, *bus, service, sessionEnded);
        }
    } catch (const sdbus::Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
