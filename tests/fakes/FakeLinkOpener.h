// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LinkOpener.h"

#include <QList>

namespace quillon::test {

/// A desktop with a browser.
class FakeLinkOpener : public LinkOpener
{
public:
    bool open(const QUrl &url) override
    {
        if (hasBrowser) {
            opened.append(url);
        }
        return hasBrowser;
    }

    bool hasBrowser = true;
    QList<QUrl> opened;
};

} // namespace quillon::test
