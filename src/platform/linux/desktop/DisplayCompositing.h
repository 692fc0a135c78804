// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Compositing.h"

namespace quillon {

/// Under Wayland the display always blends; under X11 it does while a compositor owns the selection
/// that stands for it. Needs a QGuiApplication.
class DisplayCompositing : public Compositing
{
public:
    bool isActive() const override;
};

} // namespace quillon
