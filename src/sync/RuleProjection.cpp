// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RuleProjection.h"

#include "base/UniqueName.h"
#include "store/model/QuillonModel.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace quillon {

namespace {

/// What only one enabled rule may have: interface and network.
using Place = std::pair<QString, QString>;

QString textOf(const RecordState &rule, const QString &attribute)
{
    const SyncValue value = rule.value(attribute);
    const QString *text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

Place placeOf(const RecordState &rule)
{
    return {textOf(rule, model::rule::device), textOf(rule, model::rule::network)};
}

bool isWrittenEnabled(const RecordState &rule)
{
    return rule.value(model::rule::enabled) == SyncValue(true);
}

/// Since when it has been enabled at its place.
Stamp enabledSince(const RecordState &rule)
{
    const auto stamp = [&rule](const QString &name) { return rule.attributes.value(name).stamp; };
    return std::max(
        {stamp(model::rule::enabled), stamp(model::rule::device), stamp(model::rule::network)});
}

/// The one that holds at each place.
QMap<Place, QUuid> enabledRules(const RuleStates &rules)
{
    QMap<Place, QUuid> holders;
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        if (!isWrittenEnabled(*it)) {
            continue;
        }
        const auto holder = holders.find(placeOf(*it));
        if (holder == holders.end()) {
            holders.insert(placeOf(*it), it.key());
        } else if (const Stamp known = enabledSince(rules[*holder]);
            std::tuple(known, *holder) < std::tuple(enabledSince(*it), it.key())) {
            *holder = it.key();
        }
    }
    return holders;
}

/// The rules that have a name, in the order in which they got it.
QList<QUuid> byAgeOfName(const RuleStates &rules)
{
    QList<QUuid> order;
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        if (std::holds_alternative<QString>(it->value(model::rule::name))) {
            order.append(it.key());
        }
    }
    std::ranges::sort(order, {}, [&rules](const QUuid &id) {
        return std::tuple(rules[id].attributes[model::rule::name].stamp, id);
    });
    return order;
}

QMap<QUuid, QString> uniqueNames(const RuleStates &rules)
{
    QMap<QUuid, QString> names;
    QSet<QString> taken;
    QList<QUuid> second;
    const QList<QUuid> order = byAgeOfName(rules);
    for (const QUuid &id : order) {
        const QString name = textOf(rules[id], model::rule::name);
        if (taken.contains(name)) {
            second.append(id);
        } else {
            taken.insert(name);
            names.insert(id, name);
        }
    }
    // Where the search for a free number goes on: many rules of one name must not cost its square.
    QMap<QString, int> next;
    for (const QUuid &id : second) {
        const QString name = textOf(rules[id], model::rule::name);
        int &suffix = next[name];
        suffix = std::max(suffix, 1);
        QString free = numberedName(name, ++suffix);
        while (taken.contains(free)) {
            free = numberedName(name, ++suffix);
        }
        taken.insert(free);
        names.insert(id, free);
    }
    return names;
}

} // namespace

QMap<QUuid, RecordValues> shownRules(const RuleStates &rules)
{
    const QMap<Place, QUuid> holders = enabledRules(rules);
    const QMap<QUuid, QString> names = uniqueNames(rules);
    QMap<QUuid, RecordValues> shown;
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        RecordValues values = it->values();
        if (isWrittenEnabled(*it) && holders.value(placeOf(*it)) != it.key()) {
            values.insert(model::rule::enabled, false);
        }
        if (const auto name = names.find(it.key()); name != names.end()) {
            values.insert(model::rule::name, *name);
        }
        shown.insert(it.key(), values);
    }
    return shown;
}

QList<QUuid> silencedRules(
    const RuleStates &before, const RuleStates &after, const QList<QUuid> &edited)
{
    QSet<Place> places;
    for (const QUuid &id : edited) {
        for (const RuleStates *rules : {&before, &after}) {
            if (const auto rule = rules->find(id); rule != rules->end()) {
                places.insert(placeOf(*rule));
            }
        }
    }
    const QMap<Place, QUuid> holders = enabledRules(before);
    QList<QUuid> silenced;
    for (auto it = before.begin(); it != before.end(); ++it) {
        const Place place = placeOf(*it);
        if (isWrittenEnabled(*it) && places.contains(place) && holders.value(place) != it.key()) {
            silenced.append(it.key());
        }
    }
    return silenced;
}

} // namespace quillon
