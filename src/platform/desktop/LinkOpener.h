// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace quillon {

/// Whatever the user looks at web pages and files with. Main thread.
class LinkOpener
{
public:
    virtual ~LinkOpener() = default;

    /// False when there is nothing that opens it.
    virtual bool open(const QUrl &url) = 0;
};

} // namespace quillon
