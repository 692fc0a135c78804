// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Batches.h"

#include "store/model/QuillonModel.h"

#include <QDateTime>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// The batches whose connections are kept.
constexpr qint64 window = 3;
const QString marker = u"marker"_s;

using Values = QVariantMap;

int size(qint64 batch)
{
    return static_cast<int>(1 + batch * 7 % 12);
}

QString device(qint64 batch)
{
    return u"batch %1"_s.arg(batch);
}

QString changedBy(qint64 batch)
{
    return u"changed by %1"_s.arg(batch);
}

/// Connection `index` of the batch, as it was inserted. Lengths differ, so that the file's pages
/// are split and joined.
Values connection(qint64 batch, int index)
{
    const auto letter = QChar(u'a' + static_cast<int>(batch % 26));
    Values values{
        {model::connection::date, QDateTime::fromMSecsSinceEpoch(batch * 1000 + index, Qt::UTC)},
        {model::connection::device, device(batch)},
        {model::connection::interface, u"%1 of %2"_s.arg(index).arg(size(batch))},
        {model::connection::ssid, u"new"_s},
        {model::connection::bssid, QString((batch * 311 + index * 173) % 3000, letter)},
    };
    if (index % 2 == 0) {
        values.insert(model::connection::notes, u"Caf\u00e9 \U0001F310"_s);
    }
    return values;
}

Values rule(qint64 batch)
{
    return {
        {model::rule::name, device(batch)},
        {model::rule::enabled, batch % 2 == 0},
        {model::rule::timerMins, batch % 1000 - 500},
    };
}

Values markerRule(qint64 batch)
{
    return {{model::rule::name, marker}, {model::rule::address, QString::number(batch)}};
}

QString text(const Entity &entity, const std::function<QVariant(const QString &)> &value)
{
    QStringList parts{entity.name()};
    for (const Attribute &attribute : entity.attributes()) {
        const QVariant here = value(attribute.name);
        if (here.isValid()) {
            parts << attribute.name + u'=' +
                         (here.typeId() == QMetaType::QDateTime
                                 ? here.toDateTime().toUTC().toString(Qt::ISODateWithMs)
                                 : here.toString());
        }
    }
    return parts.join(u';');
}

QString text(const QString &entity, const Values &values)
{
    return text(*quillonModel().entity(entity),
        [&values](const QString &attribute) { return values.value(attribute); });
}

void setValues(ManagedObject &object, const Values &values)
{
    for (auto value = values.begin(); value != values.end(); ++value) {
        object.setValue(value.key(), value.value());
    }
}

} // namespace

void Batches::change(qint64 number)
{
    insertConnections(number);
    const auto connectionsOf = [this](qint64 batch) {
        return fetch(model::Connection, Predicate::equal(model::connection::device, device(batch)));
    };
    for (const auto &object : connectionsOf(number - 1)) {
        object->setValue(model::connection::ssid, changedBy(number));
    }
    for (const auto &object : connectionsOf(number - window)) {
        m_context.deleteObject(object);
    }
    for (const auto &object : fetch(model::Rule, {})) {
        if (object->value(model::rule::name) != marker) {
            m_context.deleteObject(object);
        }
    }
    setValues(*m_context.insertNewObject(model::Rule), rule(number));
    const auto markers = fetch(model::Rule, Predicate::equal(model::rule::name, marker));
    setValues(markers.isEmpty() ? *m_context.insertNewObject(model::Rule) : *markers.first(),
        markerRule(number));
}

void Batches::insertConnections(qint64 batch)
{
    for (int index = 0; index < size(batch); ++index) {
        setValues(*m_context.insertNewObject(model::Connection), connection(batch, index));
    }
}

qint64 Batches::last()
{
    const auto rules = m_context.fetch({model::Rule, {}, {}});
    if (!rules) {
        return -1;
    }
    for (const auto &object : rules.value()) {
        if (object->value(model::rule::name) == marker) {
            return object->value(model::rule::address).toString().toLongLong();
        }
    }
    return rules.value().isEmpty() ? 0 : -1;
}

QStringList Batches::found()
{
    QStringList lines;
    for (const Entity &entity : quillonModel().entities) {
        for (const auto &object : fetch(entity.name(), {})) {
            lines << text(
                entity, [&](const QString &attribute) { return object->value(attribute); });
        }
    }
    lines.sort();
    return lines;
}

QStringList Batches::expected(qint64 last)
{
    QStringList lines;
    if (last > 0) {
        lines << text(model::Rule, rule(last)) << text(model::Rule, markerRule(last));
    }
    for (qint64 batch = std::max(qint64(1), last - window + 1); batch <= last; ++batch) {
        for (int index = 0; index < size(batch); ++index) {
            Values values = connection(batch, index);
            if (batch < last) {
                values.insert(model::connection::ssid, changedBy(batch + 1));
            }
            lines << text(model::Connection, values);
        }
    }
    lines.sort();
    return lines;
}

ManagedObjectList Batches::fetch(const QString &entity, std::optional<Predicate> predicate)
{
    const auto objects = m_context.fetch({entity, std::move(predicate), {}});
    return objects ? objects.value() : ManagedObjectList();
}

} // namespace quillon::test
