// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopLinkOpener.h"

#include <QDesktopServices>

namespace quillon {

bool DesktopLinkOpener::open(const QUrl &url)
{
    return url.isValid() && QDesktopServices::openUrl(url);
}

} // namespace quillon
