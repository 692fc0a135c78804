// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RandomSource.h"

#include <sys/types.h>

namespace quillon {

/// The kernel's generator, getrandom(2).
class GetrandomSource : public RandomSource
{
public:
    using SystemCall = ssize_t (*)(void *buffer, size_t length, unsigned int flags);

    GetrandomSource();
    explicit GetrandomSource(SystemCall getrandom);

    QByteArray bytes(int count) override;

private:
    const SystemCall m_getrandom;
};

} // namespace quillon
