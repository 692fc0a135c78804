// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A request is a command; the answer is the time from before it was started until it had ended.
#include "bench/Request.h"

#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace quillon::bench;

/// Output is thrown away, so that no reader's speed is in the figure.
class Silence
{
public:
    Silence()
    {
        posix_spawn_file_actions_init(&m_actions);
        for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            posix_spawn_file_actions_addopen(&m_actions, descriptor, "/dev/null", O_RDWR, 0);
        }
    }
    ~Silence() { posix_spawn_file_actions_destroy(&m_actions); }
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;

    const posix_spawn_file_actions_t *actions() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

Words run(const Words &command)
{
    static const Silence silence;
    std::vector<char *> arguments;
    for (const std::string &word : command) {
        arguments.push_back(const_cast<char *>(word.c_str()));
    }
    arguments.push_back(nullptr);

    pid_t process = 0;
    int status = 0;
    const Clock::time_point begin = Clock::now();
    const int error =
        posix_spawn(&process, arguments[0], silence.actions(), nullptr, arguments.data(), environ);
    const pid_t ended = error == 0 ? waitpid(process, &status, 0) : -1;
    const Clock::time_point end = Clock::now();
    if (error != 0) {
        throw std::runtime_error(command[0] + ": " + std::strerror(error));
    }
    if (ended != process || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error(command[0] + " failed");
    }
    return {word(end - begin)};
}

} // namespace

int main()
{
    serve(run);
}
