// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exposure/Trace.h"

namespace quillon {

/// The setting of `owner` that has less of that trace shown, as it is written in its files or for
/// its commands; "" where there is none, or where nobody is known. In no language.
QString settingAgainst(
    Trace::Kind kind, Trace::Lasts lasts, const QString &owner, const QString &device);

} // namespace quillon
