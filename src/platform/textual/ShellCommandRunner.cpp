// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/ShellCommandRunner.h"

#include "base/Log.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

class Pipe
{
public:
    Pipe() { m_open = pipe2(m_ends.data(), O_CLOEXEC) == 0; }
    ~Pipe()
    {
        closeEnd(0);
        closeEnd(1);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    bool isOpen() const { return m_open; }
    int readEnd() const { return m_ends[0]; }
    int writeEnd() const { return m_ends[1]; }
    void closeWriteEnd() { closeEnd(1); }

private:
    void closeEnd(std::size_t end)
    {
        if (m_ends[end] >= 0) {
            close(m_ends[end]);
            m_ends[end] = -1;
        }
    }

    std::array<int, 2> m_ends{-1, -1};
    bool m_open = false;
};

QByteArray readToEnd(int descriptor)
{
    QByteArray output;
    std::array<char, 4096> part;
    for (;;) {
        const ssize_t size = read(descriptor, part.data(), part.size());
        if (size > 0) {
            output.append(part.data(), size);
        } else if (size == 0 || errno != EINTR) {
            return output;
        }
    }
}

std::optional<pid_t> startShell(const QByteArray &command, const Pipe &input, const Pipe &output)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.readEnd(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd(), STDOUT_FILENO);
    // The shell gets the signals as a fresh process has them, whatever this thread blocks.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    sigset_t pipeSignal;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &pipeSignal);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    const std::array<const char *, 4> arguments{"/bin/sh", "-c", command.constData(), nullptr};
    pid_t child = -1;
    const int result = posix_spawn(&child, "/bin/sh", &actions, &attributes,
        const_cast<char *const *>(arguments.data()), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (result != 0) {
        qCWarning(logPlatform, "The shell did not start: %s", std::strerror(result));
        return std::nullopt;
    }
    return child;
}

} // namespace

ShellCommandRunner::~ShellCommandRunner()
{
    for (const pid_t child : m_unreaped) {
        waitpid(child, nullptr, WNOHANG);
    }
}

QString ShellCommandRunner::run(const QString &command)
{
    Pipe input;
    Pipe output;
    if (!input.isOpen() || !output.isOpen()) {
        const int error = errno;
        qCWarning(logPlatform, "No pipes for the shell: %s", std::strerror(error));
        return {};
    }
    const auto child = startShell(command.toUtf8(), input, output);
    if (!child) {
        return {};
    }
    input.closeWriteEnd();
    output.closeWriteEnd();
    const QString text = QString::fromUtf8(readToEnd(output.readEnd()));
    reapLater(*child);
    return text;
}

void ShellCommandRunner::reapLater(pid_t child)
{
    // Only the end of the output is waited for, so a shell that outlives it is collected by a later
    // run.
    const std::lock_guard lock(m_mutex);
    m_unreaped.append(child);
    m_unreaped.removeIf([](pid_t shell) { return waitpid(shell, nullptr, WNOHANG) != 0; });
}

} // namespace quillon
