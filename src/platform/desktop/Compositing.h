// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// Whether the display blends windows into what lies under them. Without that, a part of a window
/// that is meant to be transparent is black. Main thread.
class Compositing
{
public:
    virtual ~Compositing() = default;

    /// Now: a compositor may be started and ended at any time.
    virtual bool isActive() const = 0;
};

} // namespace quillon
