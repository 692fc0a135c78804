// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"

namespace quillon::test {

QString testData()
{
    return QStringLiteral(QUILLON_TEST_DATA);
}

QString buildFolder()
{
    return QStringLiteral(QUILLON_BUILD);
}

} // namespace quillon::test
