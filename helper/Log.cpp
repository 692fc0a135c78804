// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Log.h"

#include <poll.h>
#include <unistd.h>

namespace quillon {

std::string harmless(std::string_view text)
{
    static constexpr char digits[] = "0123456789abcdef";
    static constexpr std::size_t longest = 64;
    std::string result = "\"";
    for (char c : text.substr(0, longest)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte > 0x7e || c == '"' || c == '\\') {
            result += "\\x";
            result += digits[byte >> 4U];
            result += digits[byte & 15U];
        } else {
            result += c;
        }
    }
    result += text.size() > longest ? "\"..." : "\"";
    return result;
}

void logLine(std::string_view line)
{
    std::string whole{line};
    whole += '\n';
    // A reader that does not read must not hold us up: what finds no room is lost.
    pollfd output{STDERR_FILENO, POLLOUT, 0};
    if (::poll(&output, 1, 0) != 1 || (output.revents & POLLOUT) == 0) {
        return;
    }
    // One write, so that lines of two processes do not mix. There is nobody to tell when it fails.
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, whole.data(), whole.size());
}

} // namespace quillon
