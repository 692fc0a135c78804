// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LinkOpener.h"

namespace quillon {

/// The program that the desktop has for a link.
class DesktopLinkOpener : public LinkOpener
{
public:
    bool open(const QUrl &url) override;
};

} // namespace quillon
