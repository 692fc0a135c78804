// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace quillon {

/// Where the user gets new versions of this program: the system's software center, or a web page
/// that a browser shows. Nothing is fetched or installed by it. Main thread.
class SoftwareCenter
{
public:
    virtual ~SoftwareCenter() = default;

    /// Opens the program's own page. False where no software center is known that would have one.
    virtual bool openOwnPage() = 0;
    /// Opens an https address in the browser. False for any other, and where none can be started.
    virtual bool openWebPage(const QUrl &page) = 0;
};

} // namespace quillon
