// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Assertion.h"

#include <QtGlobal>

namespace quillon {

void assertCondition(
    bool condition, const char *operation, const char *file, int line, const char *text)
{
    if (!condition) {
        qFatal("*** Assertion failure in %s, %s:%d\nInvalid parameter not satisfying: %s",
            operation, file, line, text);
    }
}

} // namespace quillon
