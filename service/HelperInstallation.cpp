// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/HelperInstallation.h"

#include "service/PollLoop.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace quillon::service {

namespace {

// Fixed: a search path from the environment could point us at a false one that asks for a password.
constexpr char pkexec[] = "/usr/bin/pkexec";
// Exit statuses of pkexec(1) itself.
constexpr int promptDismissed = 126;
constexpr int authorizationNotObtained = 127;

constexpr std::size_t longestMessage = 1000;

// glibc before 2.36 has no wrapper.
int openChild(pid_t child)
{
    return static_cast<int>(syscall(SYS_pidfd_open, child, 0));
}

// One line of printable ASCII: it goes into an error that programs log.
std::string printable(std::string text)
{
    std::ranges::replace_if(text, [](unsigned char c) { return c < 0x20 || c > 0x7e; }, ' ');
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

} // namespace

HelperInstallation::HelperInstallation(PollLoop &loop, std::string tool)
    : m_loop(loop)
    , m_tool(std::move(tool))
{
}

HelperInstallation::~HelperInstallation()
{
    closeDescriptors();
}

void HelperInstallation::start(Reply reply)
{
    m_reply = std::move(reply);
    m_message.clear();
    if (access(m_tool.c_str(), X_OK) != 0) {
        finish(Outcome::Failed, m_tool + ": " + std::strerror(errno));
        return;
    }
    if (!spawn()) {
        finish(Outcome::Failed, std::string(pkexec) + ": " + std::strerror(errno));
        return;
    }
    m_loop.watch(m_messageDescriptor, [this] { readMessage(); });
    m_loop.watch(m_childDescriptor, [this] { childEnded(); });
}

bool HelperInstallation::spawn()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return false;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    // Without an agent of the desktop the prompt must fail, not wait at a terminal nobody sees.
    const std::array<const char *, 5> arguments{
        pkexec, "--disable-internal-agent", m_tool.c_str(), "install", nullptr};
    const int result = posix_spawn(
        &m_child, pkexec, &actions, nullptr, const_cast<char *const *>(arguments.data()), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (result != 0) {
        close(ends[0]);
        m_child = -1;
        errno = result;
        return false;
    }
    m_messageDescriptor = ends[0];
    m_childDescriptor = openChild(m_child);
    return m_childDescriptor >= 0;
}

void HelperInstallation::readMessage()
{
    std::array<char, 1024> part{};
    for (;;) {
        const ssize_t size = read(m_messageDescriptor, part.data(), part.size());
        if (size > 0) {
            // The rest is read too, so that the tool never waits for us.
            const std::size_t room = longestMessage - m_message.size();
            m_message.append(part.data(), std::min(room, static_cast<std::size_t>(size)));
            continue;
        }
        if (size == 0) {
            m_loop.unwatch(m_messageDescriptor);
        }
        return;
    }
}

void HelperInstallation::childEnded()
{
    readMessage();
    int status = 0;
    while (waitpid(m_child, &status, 0) < 0 && errno == EINTR) {
    }
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    const std::string message = printable(m_message);
    if (code == 0) {
        finish(Outcome::Installed, {});
    } else if (code == promptDismissed) {
        finish(Outcome::NotAuthorized, "The prompt was dismissed");
    } else if (code == authorizationNotObtained) {
        finish(Outcome::NotAuthorized, message.empty() ? "Not authorized" : message);
    } else {
        finish(Outcome::Failed, message.empty() ? "The tool failed without a word" : message);
    }
}

void HelperInstallation::finish(Outcome outcome, const std::string &message)
{
    closeDescriptors();
    m_child = -1;
    const Reply reply = std::exchange(m_reply, nullptr);
    reply(outcome, message);
}

void HelperInstallation::closeDescriptors()
{
    for (int *descriptor : {&m_messageDescriptor, &m_childDescriptor}) {
        if (*descriptor >= 0) {
            m_loop.unwatch(*descriptor);
            close(*descriptor);
            *descriptor = -1;
        }
    }
}

} // namespace quillon::service
