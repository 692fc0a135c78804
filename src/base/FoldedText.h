// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// `text` without case and diacritics, for every filter that ignores both: texts that differ in
/// nothing else are equal. Case is folded in full, so that "ß" is "ss" and a ligature its letters;
/// the dotless i counts as an i. Any thread.
QString foldedText(const QString &text);

} // namespace quillon
