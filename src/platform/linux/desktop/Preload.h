// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thread>

namespace quillon {

// What Qt reads on the main thread before the first window, read beforehand on threads of their
// own: a good part of the time until there is a window. Only speed depends on it: who comes too
// early waits for the reading, or reads himself.

/// Reads the system's font configuration while Qt connects to the display. To be made first in
/// main(); its end waits for the reading. Without fontconfig nothing happens.
class FontConfigurationPreload
{
public:
    FontConfigurationPreload();
    /// The configuration has been read. One thread.
    void wait();

private:
    std::jthread m_thread;
};

/// Then, as soon as there is a QGuiApplication: Qt's list of fonts and its reader of vector images.
/// Lives less long than both.
class WindowPreload
{
public:
    explicit WindowPreload(FontConfigurationPreload &fontConfiguration);

private:
    std::jthread m_thread;
};

} // namespace quillon
