// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the helper does for one change, piece by piece, with the helper's own classes. Started as
// root. Requests: authorize CALLER; callers CALLER; kernel DEVICE ADDRESS.
#include "bench/Request.h"
#include "contract/Names.h"
#include "helper/AddressChange.h"
#include "helper/BusCallers.h"
#include "helper/Log.h"
#include "helper/NetlinkKernelLink.h"
#include "helper/PolkitAuthority.h"
#include "helper/RequestLog.h"
#include "helper/SystemBus.h"

#include <cstdint>
#include <stdexcept>

namespace {

using namespace quillon;
using namespace quillon::bench;

class Pieces
{
public:
    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "authorize") {
            return authorize(request.at(1));
        }
        if (what == "callers") {
            return callers(request.at(1));
        }
        if (what == "kernel") {
            return kernel(request.at(1), request.at(2));
        }
        throw std::runtime_error("no such request: " + what);
    }

private:
    void waitFor(const bool &answered)
    {
        while (!answered) {
            if (sd_bus_process(m_bus.get(), nullptr) == 0) {
                sd_bus_wait(m_bus.get(), UINT64_MAX);
            }
        }
    }

    /// polkit's decision about `caller`, asked as the helper asks.
    Words authorize(const std::string &caller)
    {
        bool answered = false;
        bool granted = false;
        const Authority::Details details{{"device", "enp2s0"}, {"address", "02:00:00:00:00:01"}};
        const std::string check = "bench-" + std::to_string(++m_checks);
        const Clock::time_point begin = Clock::now();
        m_authority.authorize(caller, contract::actionChange, details, check, [&](bool authorized) {
            granted = authorized;
            answered = true;
        });
        waitFor(answered);
        const Clock::time_point end = Clock::now();
        if (!granted) {
            throw std::runtime_error("polkit refused");
        }
        return {word(end - begin)};
    }

    /// What the bus says of who calls, before the decision, and whether he is still there, after.
    Words callers(const std::string &caller)
    {
        bool answered = false;
        bool present = false;
        const Clock::time_point begin = Clock::now();
        m_callers.userOf(caller, [&](auto) { answered = true; });
        waitFor(answered);
        answered = false;
        m_callers.isPresent(caller, [&](bool isPresent) {
            present = isPresent;
            answered = true;
        });
        waitFor(answered);
        const Clock::time_point end = Clock::now();
        if (!present) {
            throw std::runtime_error("no such caller");
        }
        return {word(end - begin)};
    }

    /// The change itself: find, set, read back.
    Words kernel(const std::string &device, const std::string &addressText)
    {
        const auto address = contract::unicastAddress(addressText);
        if (!address) {
            throw std::runtime_error("no such address");
        }
        const Clock::time_point begin = Clock::now();
        LinkState link;
        auto outcome = m_change.find(device, link);
        if (!outcome) {
            outcome = m_change.change(link, *address, false);
        }
        const Clock::time_point end = Clock::now();
        if (outcome) {
            throw std::runtime_error(outcome->message);
        }
        return {word(end - begin)};
    }

    SystemBus m_bus = connectToSystemBus();
    RequestLog m_log{Clock::now, logLine};
    PolkitAuthority m_authority{*m_bus, m_log};
    BusCallers m_callers{*m_bus};
    NetlinkKernelLink m_kernel;
    AddressChange m_change{m_kernel};
    int m_checks = 0;
};

} // namespace

int main()
{
    Pieces pieces;
    serve([&pieces](const Words &request) { return pieces.handle(request); });
}
