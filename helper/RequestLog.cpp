// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/RequestLog.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr std::chrono::seconds period{1};
// One user can make one kind, so more of them at once are no usual thing.
constexpr std::size_t mostKinds = 8;
constexpr char otherKinds[] = "others";

} // namespace

RequestLog::RequestLog(Clock clock, Write write)
    : m_clock{std::move(clock)}
    , m_write{std::move(write)}
{
}

void RequestLog::done(std::string_view line)
{
    m_write(line);
}

void RequestLog::limited(const std::string &kind, std::string_view line)
{
    flush();
    if (!m_last || m_clock() - *m_last >= period) {
        m_last = m_clock();
        m_write(line);
        return;
    }
    const bool isRoom = m_counts.size() < mostKinds || m_counts.count(kind) != 0;
    ++m_counts[isRoom ? kind : otherKinds];
}

void RequestLog::flush()
{
    if (const auto time = left(); time && time->count() == 0) {
        m_last = m_clock();
        writeCounts();
    }
}

std::optional<std::chrono::milliseconds> RequestLog::left() const
{
    if (m_counts.empty()) {
        return std::nullopt;
    }
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(*m_last + period - m_clock());
    return std::max(rest, std::chrono::milliseconds{0});
}

void RequestLog::writeCounts()
{
    std::string list;
    for (const auto &[kind, count] : std::exchange(m_counts, {})) {
        list += (list.empty() ? "" : ", ") + std::to_string(count) + ' ' + kind;
    }
    m_write("in the last second also: " + list);
}

} // namespace quillon
