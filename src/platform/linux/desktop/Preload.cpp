// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/Preload.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QImageReader>

#include <dlfcn.h>

namespace quillon {

namespace {

/// Any image brings the plug-in in.
void readVectorImage()
{
    QByteArray drawing("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\"/>");
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader(&buffer, "svg").read();
}

} // namespace

FontConfigurationPreload::FontConfigurationPreload()
{
    // Qt has brought the library along, and no other is wanted. FcInit may be called from any
    // thread and more than once.
    using Initialize = int (*)();
    const auto initialize = reinterpret_cast<Initialize>(dlsym(RTLD_DEFAULT, "FcInit"));
    if (initialize != nullptr) {
        m_thread = std::jthread([initialize] { initialize(); });
    }
}

void FontConfigurationPreload::wait()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

WindowPreload::WindowPreload(FontConfigurationPreload &fontConfiguration)
    : m_thread([&fontConfiguration] {
        fontConfiguration.wait();
        QFontDatabase::families();
        readVectorImage();
    })
{
}

} // namespace quillon
