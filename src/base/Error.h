// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Why something failed: a domain ("POSIXErrorDomain", a D-Bus error name …) and a code in it.
/// `message` is for the log; it is never parsed.
struct Error
{
    QString domain;
    int code = 0;
    QString message;
};

/// Domain of the errno values of POSIX.1.
inline const QString posixErrorDomain = QStringLiteral("POSIXErrorDomain");
/// Domain of failures of a bus connection or a peer; the code is 0 unless the peer gave one.
inline const QString busErrorDomain = QStringLiteral("BusErrorDomain");

} // namespace quillon
