// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/PropertyList.h"
#include "base/Result.h"

namespace quillon {

/// True when `bytes` begins like a binary property list, version 0.
bool isBinaryPropertyList(const QByteArray &bytes);

/// The value in `bytes`, a binary property list ("bplist00"), which other programs may have made of
/// the settings file. As strict as its XML sister: what cannot be held as it is, is an error.
/// Nesting, objects that contain themselves and objects referred to very often are bounded. The
/// error is of propertyListErrorDomain.
Result<QVariant> readBinaryPropertyList(const QByteArray &bytes);

} // namespace quillon
