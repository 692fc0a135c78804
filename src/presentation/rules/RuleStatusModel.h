// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>
#include <QString>

namespace quillon {

class DeviceTable;

/// What the main window shows of the selected interface's rules: the rules button and the three
/// labels, of which one is plain and the others are struck through. Main thread.
class RuleStatusModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        /// The image of the rules button: "NSStatusAvailable", "NSStatusPartiallyAvailable" or
        /// "NSStatusNone".
        QString image = QStringLiteral("NSStatusNone");
        QString toolTip; ///< of the rules button
        bool activeRuleStruckThrough = false;
        bool noActiveRulesStruckThrough = false;
        bool noRulesStruckThrough = false;

        bool operator==(const State &) const = default;
    };

    explicit RuleStatusModel(const DeviceTable &devices);

    const State &state() const { return m_state.get(); }

    void updateRuleStatusForDevice(const QString &device);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    const DeviceTable &m_devices;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
