// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"
#include "sync/AccountKey.h"
#include "sync/FileProblem.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// A file of the account that was left alone. It stays there.
struct RefusedFile
{
    QString name;
    FileProblem problem = FileProblem::Damaged;

    bool operator==(const RefusedFile &) const = default;
};

/// What one look at the account came to.
struct SyncOutcome
{
    /// The first thing that the account did not do. What could be done in spite of it was done.
    std::optional<CloudError> error;
    bool couldNotStore = false; ///< this computer's disk did not keep what came, or what was made
    /// The listing had no key file: nothing was read or written. Whoever has the key puts it back.
    bool isKeyMissing = false;
    /// Why the key file is not the one of our key: nothing was read or written.
    std::optional<KeyFileProblem> keyProblem;
    int received = 0; ///< files that were merged
    int sent = 0;     ///< files that are in the account now
    bool wroteSnapshot = false;
    /// Those of which nobody was told yet.
    QList<RefusedFile> refused;
    bool hasListed = false;
    bool wantsListing = false; ///< something should be looked at again before its time

    bool isWell() const { return !error && !couldNotStore && !isKeyMissing && !keyProblem; }
};

} // namespace quillon
