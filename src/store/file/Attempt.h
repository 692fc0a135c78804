// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/file/RecordFileOpening.h"

#include <SQLiteCpp/Exception.h>

namespace quillon {

/// What `work` gives; no exception passes this edge of the component.
template <typename T, typename Work>
Result<T> attempt(const Work &work)
{
    try {
        return work();
    } catch (const RefusedFile &refused) {
        return refused.error;
    } catch (const SQLite::Exception &exception) {
        return errorOf(exception);
    }
}

} // namespace quillon
