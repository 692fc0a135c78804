// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace quillon::service {

/// What an ordinary user sees of the helper's installation. Each question looks anew.
class InstalledHelper
{
public:
    /// Absolute paths.
    struct Paths
    {
        std::string seed;         ///< the tool that would be installed
        std::string installed;    ///< where it puts itself
        std::string packaged;     ///< where the distribution's package has its own
        std::string packagedUnit; ///< the package's other file by which it is known
    };

    explicit InstalledHelper(Paths paths);

    const std::string &seed() const { return m_paths.seed; }

    /// Whether the helper that answers is the one that ought to: the package's alone where there is
    /// one, otherwise, byte by byte, the one that would be installed. Every build has the same
    /// version, so without this a repair would never arrive. True as well where nothing is
    /// installed or can be compared: then whether a helper answers, and its version, decide.
    bool isCurrent();

private:
    /// The bytes are the same as long as this is.
    struct State
    {
        dev_t device;
        ino_t file;
        off_t size;
        timespec changed;

        bool operator==(const State &other) const;
    };
    using States = std::pair<State, State>;

    static std::optional<State> stateOf(const std::string &path);

    Paths m_paths;
    std::optional<States> m_compared; ///< what was found the same
};

} // namespace quillon::service
