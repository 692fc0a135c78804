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
    watchFolder();
    // The kernel refuses to watch a file that cannot be read; the folder tells when its rights
    // change.
    if (!m_watcher.files().contains(m_path) && QFileInfo(m_path).isReadable()) {
        m_watcher.addPath(m_path);
    }
}

void FileWatch::watchFolder()
{
    // While it is missing the one above it tells when it is made, which may be while we look.
    QString folder;
    do {
        folder = nearestFolder();
        QStringList others = m_watcher.directories();
        if (!others.removeOne(folder)) {
            m_watcher.addPath(folder);
        }
        if (!others.isEmpty()) {
            m_watcher.removePaths(others);
        }
    } while (folder != nearestFolder());
}

QString FileWatch::nearestFolder() const
{
    QString folder = QFileInfo(m_path).absolutePath();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).absolutePath()) {
        folder = QFileInfo(folder).absolutePath();
    }
    return folder;
}

} // namespace quillon
