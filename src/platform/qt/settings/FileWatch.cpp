// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/FileWatch.h"

#include <QFileInfo>

#include <utility>

namespace quillon {

FileWatch::FileWatch(const QString &path, std::function<void()> changed)
    : m_path(path)
    , m_changed(std::move(changed))
{
    const auto heard = [this] {
        renew();
        m_changed();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, heard);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, heard);
    renew();
}

void FileWatch::renew()
{
    // The folder tells of a file that appears or is replaced, the file of what is written into it.
    const QString folder = QFileInfo(m_path).path();
    if (!m_watcher.directories().contains(folder) && QFileInfo::exists(folder)) {
        m_watcher.addPath(folder);
    }
    // The kernel refuses to watch a file that cannot be read; the folder tells when its rights
    // change.
    if (!m_watcher.files().contains(m_path) && QFileInfo(m_path).isReadable()) {
        m_watcher.addPath(m_path);
    }
}

} // namespace quillon
