// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"
#include "store/model/FetchRequest.h"
#include "store/model/QuillonModel.h"

#include <utility>

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

    static FetchRequest fetchRequest() { return {model::Rule, {}, {}}; }

    Rule() = default;
    explicit Rule(ManagedObjectPtr object)
        : m_object(std::move(object))
    {
    }

    bool isNull() const { return m_object == nullptr; }
    const ManagedObjectPtr &object() const { return m_object; }
    /// The record's identity as text ("objID"), "" for a null handle.
    QString objID() const { return m_object ? m_object->uriRepresentation() : QString(); }

    int action() const { return get(model::rule::action); }
    /// In force for the current network; set by evaluation only.
    bool active() const { return get(model::rule::active); }
    QString address() const { return get(model::rule::address); }
    int changeAction() const { return get(model::rule::changeAction); }
    QString device() const { return get(model::rule::device); }
    bool enabled() const { return get(model::rule::enabled); }
    bool isLogin() const { return get(model::rule::isLogin); }
    QString name() const { return get(model::rule::name); }
    /// A saved network's BSSID, one of networks/SpecialNetworks.h, or "" for login rules.
    QString network() const { return get(model::rule::network); }
    QString ssid() const { return get(model::rule::ssid); }
    /// The network is recognized by its SSID.
    bool ssidDefined() const { return get(model::rule::ssidDefined); }
    /// Minutes.
    int timerMins() const { return get(model::rule::timerMins); }
    QString vendor() const { return get(model::rule::vendor); }

    void setAction(int action) const { set(model::rule::action, action); }
    void setActive(bool active) const { set(model::rule::active, active); }
    void setAddress(const QString &address) const { set(model::rule::address, address); }
    void setChangeAction(int changeAction) const { set(model::rule::changeAction, changeAction); }
    void setDevice(const QString &device) const { set(model::rule::device, device); }
    void setEnabled(bool enabled) const { set(model::rule::enabled, enabled); }
    void setIsLogin(bool isLogin) const { set(model::rule::isLogin, isLogin); }
    void setName(const QString &name) const { set(model::rule::name, name); }
    void setNetwork(const QString &network) const { set(model::rule::network, network); }
    void setSsid(const QString &ssid) const { set(model::rule::ssid, ssid); }
    void setSsidDefined(bool ssidDefined) const { set(model::rule::ssidDefined, ssidDefined); }
    void setTimerMins(int timerMins) const { set(model::rule::timerMins, timerMins); }
    void setVendor(const QString &vendor) const { set(model::rule::vendor, vendor); }

    /// Whether both are the same record.
    bool operator==(const Rule &) const = default;

private:
    template <typename T>
    T get(const AttributeOf<T> &attribute) const
    {
        return m_object ? m_object->get(attribute) : T();
    }
    template <typename T>
    void set(const AttributeOf<T> &attribute, const std::type_identity_t<T> &value) const
    {
        if (m_object) {
            m_object->set(attribute, value);
        }
    }

    ManagedObjectPtr m_object;
};

using RuleList = QList<Rule>;

} // namespace quillon
