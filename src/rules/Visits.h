// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <optional>

namespace quillon {

/// Remembers, for each device, which rule was carried out on its visit to the network that it is
/// on, and what became of it: a rule that changes the address once does so once per visit. A change
/// of the address takes the link down and up and brings another lease, and the system reports each
/// of these as news of the device. Were the rule carried out again for them, it would cause the
/// next ones, for ever.
class Visits
{
public:
    /// What is carried out, and where.
    struct Act
    {
        QVariantMap rule; ///< the flattened copy
        QString ssid;     ///< "" for a device that is not Wi-Fi

        bool operator==(const Act &) const = default;
    };

    /// How an act stands when there is news of its device.
    enum class Standing
    {
        New,      ///< not carried out on this visit
        UnderWay, ///< asked for and not answered yet, or another change is: judged afterwards
        OwnNews,  ///< failed and not settled yet: the news may be its own, and is judged then
        Done,
        Failed,  ///< may be tried again after pause()
        Undone,  ///< another program set another address; may be carried out again
        GivenUp, ///< the same, once too often
    };
    /// `address` is the one that the device has now, "" when that is not known.
    Standing standing(const QString &device, const Act &act, const QString &address) const;

    /// The act is about to be asked for. The number is for what becomes of it.
    quint64 carryOut(const QString &device, const Act &act);
    /// The device has got the address, or already had it.
    void succeeded(const QString &device, quint64 number, const QString &address);
    /// It has not got `address`, as far as anybody knows. True when it was seen off its network
    /// since it was asked for: the network that it is on now has had no change. `now` is of a clock
    /// that nobody sets.
    bool failed(const QString &device, quint64 number, const QString &address,
        std::chrono::milliseconds now);
    /// How long what has failed waits until it is tried again: the longer, the more often it did on
    /// this visit.
    std::chrono::milliseconds pause(const QString &device, std::chrono::milliseconds now) const;
    /// What made acts fail may have gone: those that failed are New. Returns their devices.
    QStringList forgetFailures();
    /// The device has `address`: where an act that failed was to set this one, it succeeded late.
    void sawAddress(const QString &device, const QString &address);
    /// Nothing more is done about it on this visit: somebody chose another address, or was told
    /// that it cannot be kept.
    void leaveAsItIs(const QString &device);
    /// The same for an act that was not carried out yet: it counts as carried out.
    void leaveAsItIs(const QString &device, const Act &act);
    /// What is remembered is forgotten: the act is New.
    void forget(const QString &device);

    /// Whether the act was carried out on this visit, successfully or not.
    bool isCarriedOut(const QString &device, const Act &act) const;
    /// The network on which something was carried out; none where nothing was.
    std::optional<QString> ssid(const QString &device) const;
    /// The devices for which something is remembered.
    QStringList devices() const;

    /// An address change of `device`, whoever asked, is under way: until it has settled, its link
    /// may go and the network be left without a meaning.
    void changeBegan(const QString &device);
    void changeAnswered(const QString &device);
    /// Whether one has not settled.
    bool isChanging(const QString &device) const;
    /// One change that was none of a rule's has failed. Where the device was off its network
    /// meanwhile, what was carried out before was on another visit.
    void otherChangeFailed(const QString &device);
    /// One change has settled. When the link is still down it is expected back within a minute;
    /// after that, or when the clock was set back, it is down by itself.
    void changeSettled(const QString &device, bool linkIsUp, const QDateTime &now);
    /// One change never reached the helper: what the link does is not of its doing.
    void changeNotAsked(const QString &device);

    /// The device was seen on its network: it is back from where it was, if it was away.
    void sawOnNetwork(const QString &device, const QDateTime &now);
    /// The link of the device is up, on whatever network: where it was away for too long, its visit
    /// has ended.
    void sawLinkUp(const QString &device, const QDateTime &now);
    /// The device was seen off its network. Being off it by itself ends its visit, unless it comes
    /// back within `grace`.
    void sawOffNetwork(const QString &device, const QDateTime &now,
        std::chrono::milliseconds grace = std::chrono::milliseconds(0));
    /// The device was seen on another network: its visit has ended. While a change is under way
    /// that is judged when it has settled: the device may be back by then.
    void sawElsewhere(const QString &device);
    /// The device was taken away, or may have been elsewhere unseen.
    void sawGone(const QString &device);

private:
    /// An act on a visit, from the moment that it is asked for.
    struct Carried
    {
        Act act;
        quint64 number = 0;
        bool isAsked = true; ///< the answer has not come
        bool isFailed = false;
        bool wentOff = false;           ///< off the network since it was asked for
        std::optional<QString> address; ///< what it set, while it is looked after
        int failures = 0;
        std::chrono::milliseconds failedAt{0};
        QString missing = {}; ///< the address that it failed to set
        int repeats = 0;      ///< because another program had undone it
    };
    struct Absence
    {
        QDateTime since;
        std::chrono::milliseconds grace;

        bool isOver(const QDateTime &now) const;
    };
    struct Visit
    {
        std::optional<Carried> carried;
        int unanswered = 0;
        int changesUnderWay = 0;  ///< not settled
        bool isElsewhere = false; ///< seen there while a change was under way, and not back yet
        std::optional<Absence> absence;
    };

    static void endChange(Visit &visit);
    Carried *carried(const QString &device, quint64 number);

    QHash<QString, Visit> m_visits;
    quint64 m_lastNumber = 0;
};

} // namespace quillon
