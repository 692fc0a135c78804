// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Predicate.h"

#include <optional>

namespace quillon {

struct SortDescriptor
{
    QString attribute;
    bool ascending = true; ///< texts by plain code point order, nothing before everything
    /// The letters A to Z are the same in either case.
    bool ignoresCase = false;

    bool operator==(const SortDescriptor &) const = default;
};

/// Which records of one entity are wanted. Without an order they come in the order of their
/// creation, unsaved ones last; with one, equal records keep that order, or the reverse of it.
struct FetchRequest
{
    QString entity;
    std::optional<Predicate> predicate;
    QList<SortDescriptor> order;
    bool latestFirst = false; ///< of equal records, and of all where no order is asked for

    bool operator==(const FetchRequest &) const = default;
};

} // namespace quillon
