// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The rules of the address entry field, applied to the whole proposed text at every keystroke. An
/// accepted text is kept exactly as typed.
class HexFormatter
{
public:
    qint32 maximumLength() const { return m_maxLength; }
    void setMaximumLength(qint32 length) { m_maxLength = length; }

    QString stringForObjectValue(const QString &value) const { return value; }
    /// Always succeeds with the text itself.
    QString getObjectValueForString(const QString &text) const { return text; }
    /// At most 12 hexadecimal digits, or at most 17 hexadecimal digits and colons. Sets the maximum
    /// length that applied.
    bool isPartialStringValid(const QString &proposed);

private:
    qint32 m_maxLength = 2147483647;
};

} // namespace quillon
