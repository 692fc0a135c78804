// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/ChangeOutcome.h"

#include <QHash>
#include <QObject>

#include <optional>

namespace quillon {

class AddressChanger;

/// What a row of the overview can ask for that changes an address.
enum class OverviewAction
{
    None,
    Randomize,
    Restore,
};

/// Which interfaces are being changed, whoever asked for it, and what became of the last change of
/// each. It goes on while the overview is closed: who opens it meanwhile sees what is under way.
/// Main thread.
class OverviewChanges : public QObject
{
    Q_OBJECT

public:
    explicit OverviewChanges(const AddressChanger &changer);

    bool isUnderWay(const QString &device) const { return m_underWay.contains(device); }
    /// What a row asked for and is under way; none where the change came from elsewhere.
    OverviewAction actionOf(const QString &device) const { return m_underWay.value(device).action; }
    /// A row asks for a change of `device`: it is under way from now on.
    void ask(const QString &device, OverviewAction action);
    std::optional<ChangeOutcome> outcomeOf(const QString &device) const;
    void forgetOutcomes() { m_outcomes.clear(); }

Q_SIGNALS:
    void changed();

private:
    struct UnderWay
    {
        int changes = 0; ///< never 0
        /// A row asked, and nothing has begun since: what begins next is counted already.
        bool isAwaited = false;
        OverviewAction action = OverviewAction::None;
    };

    void begin(const QString &device);
    void spare(const QString &device);
    void end(const QString &device, const ChangeOutcome &outcome);
    void endOne(const QString &device);

    QHash<QString, UnderWay> m_underWay;
    QHash<QString, ChangeOutcome> m_outcomes;
};

} // namespace quillon
