// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RecordState.h"

#include <QList>
#include <QMap>
#include <QUuid>

namespace quillon {

/// Which rules there are, by identity: those that are present.
using RuleStates = QMap<QUuid, RecordState>;

/// What the program is shown of the rules: their values as they were written, but no two names are
/// alike, and of the rules for one interface and network at most one is enabled. Two computers can
/// each keep that and break it together, so it is worked out of the merged state, the same on each,
/// and is no edit of anybody's.
///
/// A name belongs to the rule that got it first; every later one gets the first free " (2)", " (3)"
/// and so on, as base/UniqueName.h makes them. Of the enabled rules the one holds that became
/// enabled there last.
QMap<QUuid, RecordValues> shownRules(const RuleStates &rules);

/// The rules that were written as enabled and are shown as switched off, although one of the
/// switches or places of `edited` is about to change: who edits sees them switched off, and that is
/// written down with the edit, lest switching off the other one switch these on. `before` and
/// `after` are the rules around the edit.
QList<QUuid> silencedRules(
    const RuleStates &before, const RuleStates &after, const QList<QUuid> &edited);

} // namespace quillon
