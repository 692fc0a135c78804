// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/SettingsStore.h"

#include <QObject>

namespace quillon {

/// The field for the minutes that a rule gets whose own are left empty: what may be typed in it,
/// and when that is stored. Main thread.
class DefaultMinutes : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        QString text;

        bool operator==(const State &) const = default;
    };

    explicit DefaultMinutes(SettingsStore &settings);
    ~DefaultMinutes() override;

    const State &state() const { return m_state.get(); }
    /// The user edited the field to `text`. False where it cannot be that: nothing has changed.
    bool edit(const QString &text);
    /// The user is done with the field. What is no number of minutes gives way to what is stored.
    void finish();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void showStored();

    SettingsStore &m_settings;
    SettingsStore::Token m_observed;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
