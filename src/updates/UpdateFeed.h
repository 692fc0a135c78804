// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "updates/UpdateVersion.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QUrl>

#include <optional>

namespace quillon {

/// A version that can be had.
struct UpdateRelease
{
    UpdateVersion version;
    QUrl page;     ///< https, where to get it
    QString notes; ///< what is new, plain text that somebody else wrote; may be empty
};

/// What a list of versions says; docs/updates.md describes its form.
struct UpdateFeed
{
    QString application; ///< whose versions these are
    QDateTime issued;    ///< UTC
    QDateTime expires;   ///< UTC; invalid when the list says nothing about it
    QList<UpdateRelease> releases;

    /// The release of the highest version; none when there is no release.
    std::optional<UpdateRelease> newest() const;
};

/// Reads the text of a list. Of what it does not know it passes over every element, and refuses
/// whatever can be understood in two ways or is not as it should be: the list is written by
/// ourselves, so a mistake in it is one that somebody has to see. For any bytes; any thread.
Result<UpdateFeed> readUpdateFeed(const QByteArray &text);

/// Whether a release may lead there: a whole https address without a user, of sensible length.
bool isUpdateAddress(const QUrl &url);

} // namespace quillon
