// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FoldedText.h"

#include <QList>

#include <algorithm>

namespace quillon {

QString foldedText(const QString &text)
{
    const auto isPlain = [](QChar letter) { return letter < QChar(0x80); };
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        return text.toCaseFolded();
    }
    QList<char32_t> letters;
    for (const uint letter : text.normalized(QString::NormalizationForm_D).toUcs4()) {
        if (QChar::category(letter) != QChar::Mark_NonSpacing) {
            letters << letter;
        }
    }
    // Qt folds letter by letter, which leaves "ß" as it is; only its upper case has more letters.
    // The capital "ẞ" has that only by way of the small one.
    return QString::fromUcs4(letters.constData(), letters.size())
        .toLower()
        .toUpper()
        .toCaseFolded();
}

} // namespace quillon
