// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/Preload.h"

#include "base/Log.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImageReader>

#include <system_error>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Any image brings the plug-in in.
void readVectorImage()
{
    QByteArray drawing("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\"/>");
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader(&buffer, "svg").read();
}

bool windowsWriteTheEnvironment()
{
    return qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN") &&
           QGuiApplication::platformName().startsWith("wayland"_L1);
}

} // namespace

WindowPreload::WindowPreload()
{
    if (windowsWriteTheEnvironment()) {
        return;
    }
    try {
        m_thread = std::jthread([] {
            QFontDatabase::families();
            readVectorImage();
        });
    } catch (const std::system_error &error) {
        qCDebug(logPlatform, "nothing is read beforehand: %s", error.what());
    }
}

void WindowPreload::wait()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

} // namespace quillon
