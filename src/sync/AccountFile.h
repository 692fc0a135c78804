// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Stamp.h"

#include <QString>

#include <optional>

namespace quillon {

/// What a file of an account is, by its name. A name tells what listing needs and nothing else; a
/// name that is spelled in any other way is somebody else's.
struct AccountFile
{
    enum class Kind
    {
        Change,   ///< what one computer wrote: `writer`, `number` from 1 on
        Snapshot, ///< which parts there are and what they cover: `writer` is a random number
        Part,     ///< of the snapshot `writer`: `number` from 0 on
    };

    Kind kind = Kind::Change;
    quint64 writer = 0;
    quint64 number = 0;

    bool operator==(const AccountFile &) const = default;

    QString name() const;
    static std::optional<AccountFile> fromName(const QString &name);
};

/// Changes whenever somebody wrote something: looking at it is looking whether there is news.
inline const QString headFileName = QStringLiteral("head");
/// The wrapped key (sync/AccountKey.h).
inline const QString keyFileName = QStringLiteral("key");

} // namespace quillon
