// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncValue.h"

#include "base/PropertyList.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborStreamReader>
#include <QCborValue>
#include <QDateTime>

#include <cmath>
#include <tuple>

namespace quillon {

namespace {

/// Deeper trees than any setting has; the way back goes down by calls.
constexpr int deepestTree = 16;
/// Marks a number in a tree as the milliseconds of a date. Qt's own spelling of dates is a text of
/// theirs, which two versions may write differently.
constexpr QCborTag dateTag{0x514c};

int depthOf(const QVariant &value, int limit)
{
    if (limit == 0) {
        return 1;
    }
    int deepest = 0;
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        for (const QVariant &nested : map) {
            deepest = std::max(deepest, depthOf(nested, limit - 1));
        }
    } else if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        for (const QVariant &nested : list) {
            deepest = std::max(deepest, depthOf(nested, limit - 1));
        }
    }
    return deepest + 1;
}

QCborValue treeValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap: {
        QCborMap map;
        const QVariantMap entries = value.toMap();
        for (auto it = entries.begin(); it != entries.end(); ++it) {
            map.insert(it.key(), treeValue(it.value()));
        }
        return map;
    }
    case QMetaType::QVariantList: {
        QCborArray array;
        const QVariantList entries = value.toList();
        for (const QVariant &entry : entries) {
            array.append(treeValue(entry));
        }
        return array;
    }
    case QMetaType::QDateTime:
        return {dateTag, value.toDateTime().toMSecsSinceEpoch()};
    default:
        return QCborValue::fromVariant(value);
    }
}

std::optional<QVariant> fromTree(const QCborValue &value, int limit)
{
    if (limit == 0) {
        return std::nullopt;
    }
    if (value.isMap()) {
        QVariantMap map;
        for (const auto &[key, nested] : value.toMap()) {
            const auto entry = fromTree(nested, limit - 1);
            if (!key.isString() || !entry) {
                return std::nullopt;
            }
            map.insert(key.toString(), *entry);
        }
        return map;
    }
    if (value.isArray()) {
        QVariantList list;
        for (const QCborValue &nested : value.toArray()) {
            const auto entry = fromTree(nested, limit - 1);
            if (!entry) {
                return std::nullopt;
            }
            list.append(*entry);
        }
        return list;
    }
    if (value.isTag()) {
        const QCborValue time = value.taggedValue();
        return value.tag() == dateTag && time.isInteger()
                   ? std::optional<QVariant>(
                         QDateTime::fromMSecsSinceEpoch(time.toInteger(), Qt::UTC))
                   : std::nullopt;
    }
    const QVariant plain = value.toVariant();
    return isPropertyList(plain) ? std::optional(normalizedPropertyList(plain)) : std::nullopt;
}

std::optional<SyncValue> treeOf(const QVariant &value)
{
    if (!isPropertyList(value) || depthOf(value, deepestTree) > deepestTree) {
        return std::nullopt;
    }
    QByteArray bytes = treeValue(normalizedPropertyList(value)).toCbor();
    return bytes.size() <= longestSyncValue ? std::optional<SyncValue>(SyncTree{bytes})
                                            : std::nullopt;
}

struct ToVariant
{
    std::optional<QVariant> operator()(std::monostate) const { return QVariant(); }
    std::optional<QVariant> operator()(bool value) const { return QVariant(value); }
    std::optional<QVariant> operator()(qint64 value) const { return QVariant(qlonglong(value)); }
    std::optional<QVariant> operator()(double value) const { return QVariant(value); }
    std::optional<QVariant> operator()(const QString &value) const { return QVariant(value); }
    std::optional<QVariant> operator()(const QByteArray &value) const { return QVariant(value); }
    std::optional<QVariant> operator()(SyncDate value) const
    {
        return QVariant(QDateTime::fromMSecsSinceEpoch(value.milliseconds, Qt::UTC));
    }
    std::optional<QVariant> operator()(const SyncTree &tree) const
    {
        QCborParserError error;
        const QCborValue value = QCborValue::fromCbor(tree.bytes, &error);
        return error.error == QCborError::NoError ? fromTree(value, deepestTree + 1) : std::nullopt;
    }
};

} // namespace

std::optional<SyncValue> syncValue(const QVariant &value)
{
    const auto bounded = [](qsizetype size, SyncValue made) {
        return size <= longestSyncValue ? std::optional(std::move(made)) : std::nullopt;
    };
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return SyncValue();
    case QMetaType::Bool:
        return SyncValue(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::LongLong:
        return SyncValue(qint64(value.toLongLong()));
    case QMetaType::Double:
        return std::isnan(value.toDouble()) ? std::nullopt
                                            : std::optional<SyncValue>(value.toDouble());
    case QMetaType::QString: {
        // What is written has whole characters only, and must compare equal after it was read.
        const QString text = QString::fromUtf8(value.toString().toUtf8());
        return bounded(text.size() * 3, text);
    }
    case QMetaType::QByteArray:
        return bounded(value.toByteArray().size(), value.toByteArray());
    case QMetaType::QDateTime:
        return value.toDateTime().isValid()
                   ? std::optional<SyncValue>(SyncDate{value.toDateTime().toMSecsSinceEpoch()})
                   : std::nullopt;
    default:
        return treeOf(value);
    }
}

std::optional<QVariant> fromSyncValue(const SyncValue &value)
{
    return std::visit(ToVariant(), value);
}

bool join(SyncRegister &into, const SyncRegister &other)
{
    if (std::tie(into.stamp, into.value) < std::tie(other.stamp, other.value)) {
        into = other;
        return true;
    }
    return false;
}

} // namespace quillon
