// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/FileProblem.h"
#include "sync/RecordState.h"

#include <QByteArray>

namespace quillon {

/// The content of a change file or of a part of a snapshot, before it is sealed: CBOR. Writers and
/// names of attributes stand in tables at its beginning, stamps as the distance to the one before.
QByteArray writtenChanges(const SyncChanges &changes);

/// The way back, for any bytes. Attributes and entities that this version does not know are kept as
/// they are.
ReadResult<SyncChanges> readChanges(const QByteArray &content);

} // namespace quillon
