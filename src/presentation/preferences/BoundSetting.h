// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/SettingsStore.h"

#include <QObject>
#include <QString>

namespace quillon {

/// A check box that is a boolean setting: it shows what the setting is, whoever changed it, and
/// changes it. A value of another type counts as off. Main thread.
class BoundSetting : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        bool isOn = false;
        QString whyDisabled; ///< "" while it can be used

        bool operator==(const State &) const = default;
    };

    /// `key` is one of base/SettingsKeys.
    BoundSetting(SettingsStore &settings, const QString &key);
    ~BoundSetting() override;

    const State &state() const { return m_state.get(); }
    bool isUsable() const { return m_state->whyDisabled.isEmpty(); }
    /// The user switched it. Ignored while it cannot be used.
    void set(bool isOn);
    void setWhyDisabled(const QString &why);
    /// Reads the setting again.
    void refresh();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    SettingsStore &m_settings;
    const QString &m_key;
    SettingsStore::Token m_observed;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
