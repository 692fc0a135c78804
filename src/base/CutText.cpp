// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/CutText.h"

namespace quillon {

QString cutText(const QString &text, qsizetype longest)
{
    if (text.size() <= longest) {
        return text;
    }
    QString kept = text.left(longest - 1);
    if (!kept.isEmpty() && kept.back().isHighSurrogate()) {
        kept.chop(1);
    }
    return kept + u'…';
}

} // namespace quillon
