// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace quillon {

class SettingsStore;

/// The interfaces that a network manager was asked to let go of and has not taken back, on disk
/// before it is asked: the next start finds those of a program that died. Each is in hand from
/// add() to abandon() or remove(). Main thread.
class ReleasedDevices
{
public:
    explicit ReleasedDevices(SettingsStore &settings);

    void add(const QString &device);
    /// Whoever added it is done, and does not know that it was taken back.
    void abandon(const QString &device);
    void remove(const QString &device);
    /// Those in nobody's hand.
    QStringList abandoned() const;

private:
    QStringList names() const;
    void write(const QStringList &names);

    SettingsStore &m_settings;
    QSet<QString> m_inHand;
};

} // namespace quillon
