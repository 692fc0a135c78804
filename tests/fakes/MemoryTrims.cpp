// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/MemoryTrims.h"

#include <atomic>
#include <cstddef>
#include <malloc.h>

namespace {

std::atomic<int> trims = 0;

} // namespace

// Takes the place of the C library's in the program that it is linked into.
extern "C" int malloc_trim(std::size_t /*pad*/) noexcept
{
    ++trims;
    return 0;
}

namespace quillon::test {

int memoryTrims()
{
    return trims;
}

} // namespace quillon::test
