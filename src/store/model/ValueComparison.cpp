// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/ValueComparison.h"

#include "store/model/Entity.h"

#include <QByteArray>
#include <QDateTime>

namespace quillon {

QVariant comparableValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toLongLong();
    case QMetaType::QString:
        return wellFormedText(value.toString());
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? value.toDateTime().toUTC() : QVariant();
    default:
        return {};
    }
}

namespace {

template <typename T>
int compared(const T &left, const T &right)
{
    return left < right ? -1 : (right < left ? 1 : 0);
}

} // namespace

int compareValues(const QVariant &left, const QVariant &right)
{
    const QVariant a = comparableValue(left);
    const QVariant b = comparableValue(right);
    if (!a.isValid() || !b.isValid() || a.typeId() != b.typeId()) {
        return compared(a.typeId(), b.typeId());
    }
    if (a.typeId() == QMetaType::QString) {
        // UTF-16 units would sort the upper planes before U+E000; UTF-8 keeps the code points'
        // order.
        return compared(a.toString().toUtf8(), b.toString().toUtf8());
    }
    if (a.typeId() == QMetaType::QDateTime) {
        return compared(a.toDateTime().toMSecsSinceEpoch(), b.toDateTime().toMSecsSinceEpoch());
    }
    return compared(a.toLongLong(), b.toLongLong());
}

} // namespace quillon
