// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exposure/Trace.h"

#include <QDateTime>
#include <QString>

namespace quillon {

// What is said of a trace, in the user's language.

/// "Name sent with DHCP".
QString traceLabel(Trace::Kind kind);
/// What is shown of it, or that it is not known, in words for what is made of something.
QString traceValue(const Trace &trace);
/// What becomes of it at a change of the address, and in a line of its own what can be done.
/// `now` is the moment to count back from.
QString traceHint(const Trace &trace, const QDateTime &now);

} // namespace quillon
