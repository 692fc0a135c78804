// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <functional>

namespace quillon {

/// The kernel's word that a file may have changed: written in place, replaced, made, removed, or
/// given other rights, with its folder or without. It may come when nothing of the sort happened.
/// Main thread only.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    FileWatch(const QString &path, std::function<void()> changed);

private:
    /// Looks after the file and its folder again, as far as they are there and were lost.
    void renew();
    void watchFolder();
    /// The folder of the file, or the nearest one above it that exists.
    QString nearestFolder() const;

    const QString m_path;
    const std::function<void()> m_changed;
    QFileSystemWatcher m_watcher;
};

} // namespace quillon
