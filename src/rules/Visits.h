// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// Remembers, for each device, which rule was carried out on its visit to the network that it is
/// on: a rule that changes the address once does so once per visit. A change of the address takes
/// the link down and up and brings another lease, and the system reports each of these as news of
/// the device. Were the rule carried out again for them, it would cause the next ones, for ever.
class Visits
{
public:
    /// What was carried out, and where.
    struct Act
    {
        QVariantMap rule; ///< the flattened copy
        QString ssid;     ///< "" for a device that is not Wi-Fi

        bool operator==(const Act &) const = default;
    };

    void carryOut(const QString &device, const Act &act);
    bool isCarriedOut(const QString &device, const Act &act) const;
    /// The devices for which something is remembered.
    QStringList devices() const;

    /// An address change of `device` is under way: until it has settled, its link may go and the
    /// network be left without a meaning.
    void changeBegan(const QString &device);
    /// One change has settled. When the link is still down it is expected back within a minute;
    /// after that, or when the clock was set back, it is down by itself.
    void changeSettled(const QString &device, bool linkIsUp, const QDateTime &now);

    /// The device was seen on its network, or off it. Being off it by itself ends its visit: what
    /// is remembered is forgotten.
    void sawOnNetwork(const QString &device, const QDateTime &now);
    void sawOffNetwork(const QString &device, const QDateTime &now);
    /// The device was taken away.
    void sawGone(const QString &device);

private:
    struct Visit
    {
        std::optional<Act> act;
        int changesUnderWay = 0;
        std::optional<QDateTime> downSince; ///< settled with the link down, not seen up since

        bool isExpectedBack(const QDateTime &now) const;
    };

    QHash<QString, Visit> m_visits;
};

} // namespace quillon
