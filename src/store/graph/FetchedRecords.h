// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"

#include <memory>

namespace quillon {

/// The result of a lazy fetch: knows its length and order at once, reads records in pages as they
/// are asked for and forgets pages not used for a while. It is a picture of the moment of the
/// fetch: later changes of a record show, later insertions do not. Main thread; not beyond its
/// context.
class FetchedRecords
{
public:
    qsizetype size() const;
    /// Null when the record was deleted meanwhile or cannot be read.
    ManagedObjectPtr at(qsizetype index) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
    friend class ManagedObjectContext;
};

} // namespace quillon
