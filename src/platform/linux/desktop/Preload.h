// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thread>

namespace quillon {

/// Reads the system's font configuration, Qt's list of fonts and its reader of vector images
/// beforehand on a thread of its own: a good part of the time until there is a window. Only speed
/// depends on it: who comes too early waits for the reading, and without a thread to be had the
/// first window reads.
///
/// Reading the configuration asks for environment variables, which must not be written meanwhile.
/// So it begins after QGuiApplication has been made, which takes the startup id of X11 out; it does
/// not begin when the first window will take a token of Wayland out; and wait() comes before
/// anything else is written. Lives less long than the QGuiApplication. Main thread.
class WindowPreload
{
public:
    WindowPreload();
    /// What was begun has been read.
    void wait();

private:
    std::jthread m_thread;
};

} // namespace quillon
