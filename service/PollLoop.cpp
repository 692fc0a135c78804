// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/PollLoop.h"

#include "contract/SdBus.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <poll.h>
#include <utility>
#include <vector>

namespace quillon::service {

void PollLoop::add(sdbus::IConnection &bus, std::function<void()> lost)
{
    m_buses[&bus] = std::move(lost);
}

void PollLoop::remove(sdbus::IConnection &bus)
{
    m_buses.erase(&bus);
}

void PollLoop::watch(int descriptor, std::function<void()> readable)
{
    m_descriptors[descriptor] = std::move(readable);
}

void PollLoop::unwatch(int descriptor)
{
    m_descriptors.erase(descriptor);
}

bool PollLoop::processBus(sdbus::IConnection &connection)
{
    bool happened = false;
    try {
        while (bus::processOne(connection)) {
            happened = true;
        }
    } catch (const sdbus::Error &error) {
        std::fprintf(stderr, "The bus broke off: %s\n", error.what());
        const auto lost = m_buses[&connection];
        m_buses.erase(&connection);
        lost();
    }
    return happened;
}

bool PollLoop::processBuses()
{
    std::vector<sdbus::IConnection *> buses;
    for (const auto &[bus, lost] : m_buses) {
        buses.push_back(bus);
    }
    bool happened = false;
    for (sdbus::IConnection *bus : buses) {
        if (m_buses.contains(bus)) {
            happened = processBus(*bus) || happened;
        }
    }
    return happened;
}

bool PollLoop::waitOnce(std::optional<std::chrono::milliseconds> limit)
{
    if (processBuses()) {
        return true;
    }
    std::vector<pollfd> entries;
    int timeout = limit ? static_cast<int>(limit->count()) : -1;
    for (const auto &[bus, lost] : m_buses) {
        const auto data = bus->getEventLoopPollData();
        entries.push_back({data.fd, data.events, 0});
        // The bus must be processed also when the time limit of one of its calls is over.
        if (const int busTimeout = data.getPollTimeout(); busTimeout >= 0) {
            timeout = timeout < 0 ? busTimeout : std::min(timeout, busTimeout);
        }
    }
    const std::size_t busCount = entries.size();
    for (const auto &[descriptor, readable] : m_descriptors) {
        entries.push_back({descriptor, POLLIN, 0});
    }
    const int ready = poll(entries.data(), entries.size(), timeout);
    if (ready < 0 && errno != EINTR) {
        return false;
    }
    bool happened = false;
    for (std::size_t i = busCount; ready > 0 && i < entries.size(); ++i) {
        const auto found = m_descriptors.find(entries[i].fd);
        if (entries[i].revents != 0 && found != m_descriptors.end()) {
            const auto readable = found->second;
            readable();
            happened = true;
        }
    }
    return processBuses() || happened;
}

} // namespace quillon::service
