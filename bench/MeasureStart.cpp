// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Requests: "start PROGRAM" starts it and answers with the nanoseconds until its first window was
// on the display, and its process; "menu PROGRAM ARGUMENT..." runs one that presses a key or a
// button and answers with the nanoseconds until a menu was on the display; "end" ends what was
// started and waits.
#include "bench/Request.h"

#include <cstdlib>
#include <memory>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using namespace quillon::bench;
using namespace std::chrono_literals;

constexpr auto startLimit = 20s;

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
using Event = std::unique_ptr<xcb_generic_event_t, Free>;

class Display
{
public:
    Display()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection)) {
            throw std::runtime_error("no display");
        }
        // The window manager's frame becomes visible together with the window in it.
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
    }
    ~Display() { xcb_disconnect(m_connection); }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    void forget()
    {
        while (const Event event{xcb_poll_for_event(m_connection)}) {
        }
    }

    enum class Kind
    {
        Window,
        Menu,
    };

    Clock::time_point waitFor(Kind kind)
    {
        const Clock::time_point limit = Clock::now() + startLimit;
        while (Clock::now() < limit) {
            while (const Event event{xcb_poll_for_event(m_connection)}) {
                if (isShown(*event, kind)) {
                    return Clock::now();
                }
            }
            pollfd descriptor{xcb_get_file_descriptor(m_connection), POLLIN, 0};
            poll(&descriptor, 1, 100);
        }
        throw std::runtime_error("no window came");
    }

private:
    static bool isShown(const xcb_generic_event_t &event, Kind kind)
    {
        if ((event.response_type & 0x7f) != XCB_MAP_NOTIFY) {
            return false;
        }
        // A menu is none of the window manager's.
        const auto &mapped = reinterpret_cast<const xcb_map_notify_event_t &>(event);
        return (mapped.override_redirect != 0) == (kind == Kind::Menu);
    }

    xcb_connection_t *m_connection;
};

class Starts
{
public:
    Words handle(const Words &request)
    {
        if (request.at(0) == "start") {
            return start(request.at(1));
        }
        if (request.at(0) == "menu") {
            return menu({request.begin() + 1, request.end()});
        }
        if (request.at(0) == "end") {
            return end();
        }
        throw std::runtime_error("no such request: " + request.at(0));
    }

private:
    Words start(const std::string &program)
    {
        m_display.forget();
        char *arguments[] = {const_cast<char *>(program.c_str()), nullptr};
        const Clock::time_point begin = Clock::now();
        if (posix_spawn(&m_process, arguments[0], nullptr, nullptr, arguments, environ) != 0) {
            throw std::runtime_error("cannot start " + program);
        }
        const Clock::time_point mapped = m_display.waitFor(Display::Kind::Window);
        return {word(mapped - begin), std::to_string(m_process)};
    }

    Words menu(Words command)
    {
        m_display.forget();
        std::vector<char *> arguments;
        for (std::string &word : command) {
            arguments.push_back(word.data());
        }
        arguments.push_back(nullptr);
        pid_t process = 0;
        const Clock::time_point begin = Clock::now();
        if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) !=
            0) {
            throw std::runtime_error("cannot start " + command.at(0));
        }
        const Clock::time_point mapped = m_display.waitFor(Display::Kind::Menu);
        waitpid(process, nullptr, 0);
        return {word(mapped - begin)};
    }

    Words end()
    {
        int status = 0;
        kill(m_process, SIGTERM);
        waitpid(m_process, &status, 0);
        return {"ended"};
    }

    Display m_display;
    pid_t m_process = 0;
};

} // namespace

int main()
{
    Starts starts;
    serve([&starts](const Words &request) { return starts.handle(request); });
}
