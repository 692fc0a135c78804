// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SoftwareCenter.h"

#include <functional>

namespace quillon {

/// Software centers take addresses "appstream:ID" (AppStream), like a browser those of pages; the
/// desktop knows which program that is. Only where a package brought this program does a software
/// center know it.
class DesktopSoftwareCenter : public SoftwareCenter
{
public:
    /// Hands an address to the desktop; false when nothing could be started for it.
    using Open = std::function<bool(const QUrl &address)>;

    /// By default, by QDesktopServices: the portal or xdg-open.
    explicit DesktopSoftwareCenter(bool isPackaged, Open open = {});

    bool openOwnPage() override;
    bool openWebPage(const QUrl &page) override;

private:
    const bool m_isPackaged;
    const Open m_open;
};

} // namespace quillon
