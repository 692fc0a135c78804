// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/QuillonModel.h"

namespace quillon {

/// Which rule is in force is a fact of each computer's own network, and no choice of the person's.
inline bool isSynchronized(const QString &entity, const QString &attribute)
{
    return entity != model::Rule || attribute != model::rule::active;
}

} // namespace quillon
