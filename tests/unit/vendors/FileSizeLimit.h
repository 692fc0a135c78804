// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace quillon::test {

/// Files of this process grow no further than `bytes` while it lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_previousHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_previous);
        const rlimit limit = {bytes, m_previous.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_previousHandler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    void (*m_previousHandler)(int);
    rlimit m_previous = {};
};

} // namespace quillon::test
