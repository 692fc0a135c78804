// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SeededRandom.h"
#include "store/model/QuillonModel.h"
#include "sync/RecordState.h"

#include <array>

namespace quillon::test {

inline RecordId ruleId(int number)
{
    return {model::Rule, QUuid(uint(number), 1, 2, 3, 4, 5, 6, 7, 8, 9, 10)};
}

inline Stamp randomStamp(SeededRandom &random)
{
    return {1 + random.below(6), quint32(random.below(2)), WriterId(1 + random.below(3))};
}

inline SyncValue randomValue(SeededRandom &random)
{
    switch (random.below(6)) {
    case 0:
        return {};
    case 1:
        return random.oneIn(2);
    case 2:
        return qint64(random.below(5)) - 2;
    case 3:
        return QStringLiteral("value %1").arg(random.below(3));
    case 4:
        return SyncDate{random.below(4)};
    default:
        return QStringLiteral("02:00:00:00:00:0%1").arg(random.below(3));
    }
}

/// Small ranges, so that stamps, values and records meet often.
inline SyncChanges randomChanges(SeededRandom &random)
{
    const std::array attributes{
        model::rule::name.name, model::rule::device.name, model::rule::enabled.name};
    SyncChanges changes;
    for (int i = random.below(4); i > 0; --i) {
        RecordState state;
        state.inserted = random.oneIn(2) ? randomStamp(random) : Stamp();
        state.deleted = random.oneIn(3) ? randomStamp(random) : Stamp();
        for (const QString &attribute : attributes) {
            const SyncRegister value{randomValue(random), randomStamp(random)};
            if (random.oneIn(2) && value.stamp > state.deleted) {
                state.attributes.insert(attribute, value);
            }
        }
        changes.records.insert(ruleId(random.below(3)), state);
    }
    for (int i = random.below(3); i > 0; --i) {
        changes.settings.insert({QStringLiteral("key"), QString::number(random.below(2))},
            {randomValue(random), randomStamp(random)});
    }
    return changes;
}

} // namespace quillon::test
