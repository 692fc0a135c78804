// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <sys/inotify.h>
#include <unistd.h>

namespace quillon::test {

/// Watches whether anybody opens a file.
class OpenedFile
{
public:
    explicit OpenedFile(const QString &path)
        : m_watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(inotify_add_watch(m_watch, QFile::encodeName(path).constData(), IN_OPEN), 0);
    }
    ~OpenedFile() { ::close(m_watch); }
    OpenedFile(const OpenedFile &) = delete;
    OpenedFile &operator=(const OpenedFile &) = delete;

    /// Since the last call.
    bool wasOpened() const
    {
        alignas(inotify_event) std::array<char, 4096> events{};
        bool any = false;
        while (::read(m_watch, events.data(), events.size()) > 0) {
            any = true;
        }
        EXPECT_EQ(errno, EAGAIN);
        return any;
    }

private:
    const int m_watch;
};

} // namespace quillon::test
