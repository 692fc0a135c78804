// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CloudStorage.h"

#include <algorithm>

namespace quillon {

bool isCloudFileName(const QString &name)
{
    constexpr qsizetype longest = 128;
    const auto isPlain = [](QChar letter) {
        return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z') ||
               (letter >= u'0' && letter <= u'9');
    };
    return !name.isEmpty() && name.size() <= longest && isPlain(name.front()) &&
           std::all_of(name.begin(), name.end(),
               [&](QChar letter) { return isPlain(letter) || letter == u'.' || letter == u'-'; });
}

void CloudStorage::watch(std::function<void()>)
{
}

} // namespace quillon
