// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/PropertyList.h"
#include "base/Result.h"

namespace quillon {

/// Domain of errors in the content of a property list; the message says where and what.
inline const QString propertyListErrorDomain = QStringLiteral("PropertyListErrorDomain");

/// The value in `text`, an XML property list (PropertyList-1.0.dtd). Strict: what is not
/// well-formed, a key without a value, a date, a number or data that cannot be read, an unknown
/// element and nesting beyond the limit are errors, never other values. Of a key given twice the
/// last one counts.
Result<QVariant> readXmlPropertyList(const QByteArray &text);

/// `value`, normalized, as an XML property list in UTF-8, readable and with its keys in order.
QByteArray xmlPropertyList(const QVariantMap &value);

} // namespace quillon
