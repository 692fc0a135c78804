// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// What the log says of requests. Whoever may not do anything can still ask as often as he likes,
/// so lines about that come once a second: the first as it is, the others of that second as one
/// line that counts them by kind. Lines about what was done are always written: no flood may make
/// the journal drop them.
class RequestLog
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Clock = std::function<Time()>;
    using Write = std::function<void(std::string_view line)>;

    RequestLog(Clock clock, Write write);

    void done(std::string_view line);
    /// `kind` in the plural ("refused requests of user 1000"); there are few of them.
    void limited(const std::string &kind, std::string_view line);
    /// Writes what was counted, when its second is over.
    void flush();
    /// Until flush() has something to write; none when it has nothing.
    std::optional<std::chrono::milliseconds> left() const;

private:
    void writeCounts();

    Clock m_clock;
    Write m_write;
    /// When the last limited line was written.
    std::optional<Time> m_last;
    std::map<std::string, unsigned long> m_counts;
};

} // namespace quillon
