// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

class SettingsStore;

/// The interfaces that a network manager was asked to let go of and has not taken back, on disk
/// before it is asked: the next start finds those of a program that died. Main thread.
class ReleasedDevices
{
public:
    explicit ReleasedDevices(SettingsStore &settings);

    void add(const QString &device);
    void remove(const QString &device);
    QStringList names() const;

private:
    void write(const QStringList &names);

    SettingsStore &m_settings;
};

} // namespace quillon
