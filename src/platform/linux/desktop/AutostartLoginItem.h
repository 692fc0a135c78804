// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"

#include <QDBusConnection>
#include <QObject>

namespace quillon {

/// The entry in the user's autostart folder. A file is replaced atomically, and what is not ours is
/// never written over or removed: an entry is ours while it starts our program, or where that has
/// gone, a program of its name.
class AutostartLoginItem : public QObject, public LoginItem
{
    Q_OBJECT

public:
    /// `configFolder` is the user's; `program` the path of the login item, be it there or not;
    /// `bus` the session's.
    AutostartLoginItem(QString configFolder, QString program,
        const QDBusConnection &bus = QDBusConnection::sessionBus());

    /// Where it is, seen from the folder of the running program: as built, or as installed.
    static QString besideProgram(const QString &programFolder);

    std::optional<Program> program() const override;
    bool setEnabled(const QString &identifier, bool enabled) override;
    Entry entry() const override;
    void findDesktop(std::function<void(Desktop)> reply) override;

private:
    QString pathOf(const QString &identifier) const;
    Entry entryAt(const QString &path) const;
    bool startsProgram(const QString &program) const;
    bool write(const QString &path) const;

    const QString m_folder;
    const QString m_program;
    QDBusConnection m_bus;
};

} // namespace quillon
