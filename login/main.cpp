// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Interfaces.h"
#include "contract/Names.h"
#include "contract/SdBus.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

// The login item: the desktop starts it when the user logs in, it starts the program, and it stays
// on the session bus until the program has seen it there and says so.

namespace {

namespace bus = quillon::bus;
namespace contract = quillon::contract;

bool isTold(sdbus::Message &signal)
{
    try {
        std::string name;
        std::string object;
        signal >> name >> object;
        return name == contract::terminateLoginHelper &&
               object == contract::terminateLoginHelperObject;
    } catch (const sdbus::Error &) {
        // Any program of the session can send the signal, with whatever contents.
        return false;
    }
}

// A descriptor that becomes readable when the program ends, or -1 when it did not start.
int startProgram()
{
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // A session of its own: the program outlives us.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    const std::array<const char *, 2> arguments{QUILLON_PROGRAM_PATH, nullptr};
    pid_t program = -1;
    const int result = posix_spawn(&program, QUILLON_PROGRAM_PATH, nullptr, &attributes,
        const_cast<char *const *>(arguments.data()), environ);
    posix_spawnattr_destroy(&attributes);
    if (result != 0) {
        std::fprintf(stderr, "%s: %s\n", QUILLON_PROGRAM_PATH, std::strerror(result));
        return -1;
    }
    return static_cast<int>(syscall(SYS_pidfd_open, program, 0));
}

// Until the program says that it has seen us, or has ended without saying so. Throws when the
// bus is gone.
void waitFor(sdbus::IConnection &connection, const bool &told, int program)
{
    while (!told) {
        if (bus::processOne(connection)) {
            continue;
        }
        const auto data = connection.getEventLoopPollData();
        std::array<pollfd, 2> entries{pollfd{data.fd, data.events, 0}, pollfd{program, POLLIN, 0}};
        const int ready = poll(entries.data(), entries.size(), data.getPollTimeout());
        if ((ready < 0 && errno != EINTR) || (ready > 0 && entries[1].revents != 0)) {
            return;
        }
    }
}

} // namespace

int main()
{
    if (getuid() == 0 || geteuid() == 0) {
        std::fprintf(stderr, "The login item never runs as root\n");
        return 1;
    }
    try {
        const auto connection = sdbus::createSessionBusConnection();
        bool told = false;
        const std::string match = std::string("type='signal',interface='") +
                                  contract::distributed::interface + "',member='" +
                                  contract::distributed::posted.name + "',path='" +
                                  contract::distributed::path + "'";
        const auto listening = bus::listen(
            *connection, match, [&told](sdbus::Message &signal) { told = told || isTold(signal); });
        // The name comes before the program, which looks for it as soon as it starts.
        connection->requestName(bus::Name{contract::loginHelperName});
        const int program = startProgram();
        if (program < 0) {
            return 1;
        }
        waitFor(*connection, told, program);
    } catch (const sdbus::Error &error) {
        // No session bus, another login item that runs already, or the end of the session.
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
