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

/// Remembers, for each device, which rule was carried out since it joined its network. A change of
/// the address takes the link down and up and brings another lease, and the system reports each of
/// these as news of the device. Were a rule that changes the address once carried out again for
/// them, it would cause the next ones, for ever.
class CarriedOutRules
{
public:
    /// What was carried out, and where.
    struct Occasion
    {
        QVariantMap rule; ///< the flattened copy
        QString ssid;     ///< "" for a device that is not Wi-Fi

        bool operator==(const Occasion &) const = default;
    };

    void carryOut(const QString &device, const Occasion &occasion);
    bool isCarriedOut(const QString &device, const Occasion &occasion) const;
    /// The devices for which something is remembered.
    QStringList devices() const;

    /// An address change of `device` is under way: until it has settled, its link may go and the
    /// network be left without a meaning.
    void changeBegan(const QString &device);
    /// One change has settled. When the link is still down it is expected back within a minute;
    /// after that, or when the clock was set back, it is down by itself.
    void changeSettled(const QString &device, bool linkIsUp, const QDateTime &now);

    /// The device was seen on its network, or off it. Being off it by itself ends its stay: what is
    /// remembered is forgotten.
    void sawOnNetwork(const QString &device, const QDateTime &now);
    void sawOffNetwork(const QString &device, const QDateTime &now);
    /// The device was taken away.
    void sawGone(const QString &device);

private:
    struct Stay
    {
        std::optional<Occasion> occasion;
        int changesUnderWay = 0;
        std::optional<QDateTime> downSince; ///< settled with the link down, not seen up since

        bool isExpectedBack(const QDateTime &now) const;
    };

    QHash<QString, Stay> m_stays;
};

} // namespace quillon
