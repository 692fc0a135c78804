// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/ReplicaRules.h"

#include "store/model/QuillonModel.h"
#include "sync/ReplicaStorage.h"

#include <algorithm>

namespace quillon {

RuleStates presentRules(const ReplicaStorage &storage)
{
    RuleStates rules;
    const QList<RecordId> ids = storage.presentRecords(model::Rule);
    for (const RecordId &id : ids) {
        rules.insert(id.id, storage.record(id));
    }
    return rules;
}

bool touchesRules(const SyncChanges &changes)
{
    return std::any_of(changes.records.keyBegin(), changes.records.keyEnd(),
        [](const RecordId &id) { return id.entity == model::Rule; });
}

} // namespace quillon
