// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// Whether the machine's Wi-Fi radios are switched off: by a key, by a switch on the case, or by
/// the desktop, as in an airplane. Main thread.
class RadioSwitch
{
public:
    virtual ~RadioSwitch() = default;

    /// There is a Wi-Fi radio, and none of them is on. False where the system does not tell.
    virtual bool isOff() const = 0;
    /// `changed` is called from the main loop when isOff() is no longer what it was. There is one
    /// observer; an empty one ends it.
    virtual void watch(std::function<void()> changed) = 0;
};

} // namespace quillon
