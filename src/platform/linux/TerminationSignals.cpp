// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/TerminationSignals.h"

#include "base/Log.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::array handledSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler may do little more than write to a descriptor (signal-safety(7)).
volatile std::sig_atomic_t signalDescriptor = -1;

void onSignal(int)
{
    // Whatever code was interrupted may be about to read its errno.
    const int before = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(signalDescriptor, &one, sizeof one);
    errno = before;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> terminate)
{
    const int descriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (descriptor < 0) {
        qCWarning(logPlatform, "no descriptor for signals: they end the program at once");
        return;
    }
    signalDescriptor = descriptor;
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated,
        [descriptor, terminate = std::move(terminate)] {
            std::uint64_t count = 0;
            if (::read(descriptor, &count, sizeof count) == sizeof count) {
                terminate();
            }
        });

    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : handledSignals) {
        sigaction(number, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int number : handledSignals) {
        std::signal(number, SIG_DFL);
    }
    if (m_notifier) {
        m_notifier->setEnabled(false);
        ::close(static_cast<int>(m_notifier->socket()));
    }
}

} // namespace quillon
