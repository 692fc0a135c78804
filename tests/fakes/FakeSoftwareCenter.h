// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SoftwareCenter.h"

#include <QList>

namespace quillon::test {

/// A desktop with a browser, and without a software center unless a test says so.
class FakeSoftwareCenter : public SoftwareCenter
{
public:
    bool openOwnPage() override
    {
        ownPagesOpened += hasOwnPage ? 1 : 0;
        return hasOwnPage;
    }
    bool openWebPage(const QUrl &page) override
    {
        if (hasBrowser) {
            opened.append(page);
        }
        return hasBrowser;
    }

    bool hasOwnPage = false;
    bool hasBrowser = true;
    int ownPagesOpened = 0;
    QList<QUrl> opened;
};

} // namespace quillon::test
