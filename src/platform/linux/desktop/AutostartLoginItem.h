// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"

#include <QDBusConnection>
#include <QObject>

namespace quillon {

/// The entry in the user's autostart folder. A file is replaced atomically, and what is not ours is
/// never written over or removed: an entry is ours while it starts our program, or where that has
/// gone, a program of its name. One of the same name for all users acts where the user has none;
/// to switch that off a file of the user's hides it.
class AutostartLoginItem : public QObject, public LoginItem
{
    Q_OBJECT

public:
    struct Folders
    {
        QString own;        ///< of the user's configuration
        QStringList shared; ///< of that for all users, what counts more first
    };

    /// `program` is the path of the login item, be it there or not; `bus` the session's.
    AutostartLoginItem(Folders folders, QString program,
        const QDBusConnection &bus = QDBusConnection::sessionBus());

    /// By the environment, as the desktop has them.
    static Folders folders();

    /// Where it is, seen from the folder of the running program: as built, or as installed.
    static QString besideProgram(const QString &programFolder);

    std::optional<Program> program() const override;
    bool setEnabled(const QString &identifier, bool enabled) override;
    Entry entry() const override;
    void findDesktop(std::function<void(Desktop)> reply) override;

private:
    QString pathOf(const QString &identifier) const;
    Entry entryAt(const QString &path) const;
    bool isStartedForAll(const QString &identifier) const;
    bool startsProgram(const QString &program) const;
    bool takeOut(const QString &identifier) const;

    const Folders m_folders;
    const QString m_program;
    QDBusConnection m_bus;
};

} // namespace quillon
