// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceRecord.h"

#include "base/Localized.h"
#include "base/PropertyList.h"
#include "base/SettingsKeys.h"

#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Calls `visit(key, type, field)` for every field of `record`.
template <typename Record, typename Visitor>
void forEachField(Record &record, Visitor visit)
{
    using enum PropertyListType;
    visit(record::device, String, record.device);
    visit(record::interface, String, record.interface);
    visit(record::localizedInterface, String, record.localizedInterface);
    visit(record::hardware, String, record.hardware);
    visit(record::current, String, record.current);
    visit(record::status, String, record.status);
    visit(record::ipAddress, String, record.ipAddress);
    visit(record::router, String, record.router);
    visit(record::vendor, String, record.vendor);
    visit(record::hasRule, Integer, record.hasRule);
    visit(record::rule, Dictionary, record.rule);
    visit(record::loginRule, Dictionary, record.loginRule);
}

} // namespace

DeviceRecord DeviceRecord::fromPropertyList(const QVariant &stored)
{
    DeviceRecord record;
    record.other = stored.toMap();
    const auto take = [&record]<typename T>(
                          const QString &key, PropertyListType type, std::optional<T> &field) {
        const auto found = record.other.constFind(key);
        if (found != record.other.constEnd() && propertyListType(*found) == type) {
            field = found->value<T>();
            record.other.erase(found);
        }
    };
    forEachField(record, take);
    return record;
}

QVariantMap DeviceRecord::toPropertyList() const
{
    QVariantMap stored = other;
    forEachField(*this, [&stored](const QString &key, PropertyListType, const auto &field) {
        if (field) {
            stored[key] = QVariant::fromValue(*field);
        }
    });
    return stored;
}

bool DeviceRecord::isWifi() const
{
    return interface == u"Wi-Fi"_s;
}

QString DeviceRecord::shownInterface() const
{
    return isWifi() ? localized("Wi-Fi") : interface.value_or(QString());
}

bool DeviceRecord::isUp() const
{
    return status == u"active"_s;
}

bool isSameInterface(const DeviceRecord &one, const DeviceRecord &other)
{
    const auto facts = [](const DeviceRecord &record) {
        return std::tie(record.interface, record.hardware, record.current, record.status,
            record.ipAddress, record.router);
    };
    return facts(one) == facts(other);
}

} // namespace quillon
