// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"
#include "store/model/FetchRequest.h"

namespace quillon {

/// A record of the entity "Rule", with its attributes by type: a handle, as cheap to copy as a
/// pointer. An attribute that holds nothing reads as 0, false or ""; writes are changes of the
/// context. A null handle reads the same and ignores writes. Main thread.
class Rule
{
public:
    /// What `action` may be besides the other places in the editor's list of actions.
    static constexpr int doNothing = 0;
    static constexpr int changeAddress = 1;
    /// What `changeAction` may be.
    static constexpr int once = 0;
    static constexpr int every = 1;
    /// `action` and `changeAction` of login rules.
    static constexpr int notChosen = -1;

    static FetchRequest fetchRequest();

    Rule() = default;
    explicit Rule(ManagedObjectPtr object);

    bool isNull() const { return m_object == nullptr; }
    const ManagedObjectPtr &object() const { return m_object; }
    /// The record's identity as text ("objID"), "" for a null handle.
    QString objID() const;

    int action() const;
    bool active() const; ///< in force for the current network; set by evaluation only
    QString address() const;
    int changeAction() const;
    QString device() const;
    bool enabled() const;
    bool isLogin() const;
    QString name() const;
    /// A saved network's BSSID, one of networks/SpecialNetworks.h, or "" for login rules.
    QString network() const;
    QString ssid() const;
    bool ssidDefined() const; ///< the network is recognised by its SSID
    int timerMins() const;    ///< minutes
    QString vendor() const;

    void setAction(int action) const;
    void setActive(bool active) const;
    void setAddress(const QString &address) const;
    void setChangeAction(int changeAction) const;
    void setDevice(const QString &device) const;
    void setEnabled(bool enabled) const;
    void setIsLogin(bool isLogin) const;
    void setName(const QString &name) const;
    void setNetwork(const QString &network) const;
    void setSsid(const QString &ssid) const;
    void setSsidDefined(bool ssidDefined) const;
    void setTimerMins(int timerMins) const;
    void setVendor(const QString &vendor) const;

    /// Whether both are the same record.
    bool operator==(const Rule &) const = default;

private:
    QVariant value(const QString &attribute) const;
    void setValue(const QString &attribute, const QVariant &value) const;

    ManagedObjectPtr m_object;
};

using RuleList = QList<Rule>;

} // namespace quillon
