// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/TerminationSignals.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <unistd.h>

namespace quillon::test {

namespace {

// The descriptor that is given out next.
int nextDescriptor()
{
    const int descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(descriptor);
    return descriptor;
}

} // namespace

TEST(TerminationSignals, LeaveTheInterruptedCodeItsErrno)
{
    const int counter = nextDescriptor();
    const TerminationSignals signals([] {});
    // One more than this and the handler's own write fails.
    const std::uint64_t full = UINT64_MAX - 1;
    ASSERT_EQ(::write(counter, &full, sizeof full), static_cast<ssize_t>(sizeof full));
    errno = EDOM;
    std::raise(SIGTERM);
    EXPECT_EQ(errno, EDOM);
}

} // namespace quillon::test
