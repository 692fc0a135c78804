// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

namespace quillon {

class AddressChanger;
class AddressOwners;
class DeviceTable;
class Notifier;
class Scheduler;
class SettingsStore;
struct ChangeOutcome;

/// Tells the user when somebody else has replaced an address that this program gave an interface,
/// once for each time that it goes, and lets them decide. An interface that has its factory address
/// back by the user's wish is watched over no longer. What a radio on no network shows is its
/// owner's affair: managers scan with addresses of their own. Main thread.
class DriftAlarm : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        Notifier &notifier;
        AddressOwners &owners;
        const DeviceTable &devices;
        AddressChanger &changer;
    };

    explicit DriftAlarm(const Collaborators &collaborators);
    /// Nothing that asks for a decision stays behind.
    ~DriftAlarm() override;

    /// Takes up what earlier runs gave the interfaces; what is not in use any more went with the
    /// machine's last start, or unseen, and is forgotten. Once, when the table has been read.
    void begin();
    /// Compares with the table, which was read just now.
    void look();

    /// AddressChanger's signals of these names: whatever an interface shows in between is this
    /// program's own doing.
    void changeBegan(const QString &device);
    void changeEnded(const QString &device, const ChangeOutcome &outcome);

private:
    void look(const QString &device);
    void askWhoOwns(const QString &device);
    void tell(const QString &device, const QString &owner);
    void applyAgain(const QString &device);
    void give(const QString &device, const QString &address);
    void forget(const QString &device);
    void endDrift(const QString &device);
    void store() const;

    struct Drift
    {
        QString address; ///< the device had it when the drift was seen
        bool isTold = false;
    };

    Collaborators m_deps;
    QMap<QString, QString> m_given; ///< address by device
    QMap<QString, int> m_changesUnderWay;
    QMap<QString, Drift> m_drifts; ///< by device, until it has its address again
};

} // namespace quillon
