// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/WholeFile.h"

#include <array>
#include <cerrno>
#include <sys/types.h>
#include <unistd.h>

namespace quillon {

bool writeWhole(int descriptor, const char *data, std::size_t size)
{
    while (size > 0) {
        const auto written = write(descriptor, data, size);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool copyWhole(int from, int to)
{
    std::array<char, 65536> buffer{};
    off_t offset = 0;
    for (;;) {
        const auto count = pread(from, buffer.data(), buffer.size(), offset);
        if (count == 0) {
            errno = ENODATA;
            return offset > 0;
        }
        if (count < 0 || !writeWhole(to, buffer.data(), static_cast<std::size_t>(count))) {
            return false;
        }
        offset += count;
    }
}

} // namespace quillon
