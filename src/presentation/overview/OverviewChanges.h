// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/ChangesUnderWay.h"

#include <QHash>
#include <QObject>

#include <optional>

namespace quillon {

/// Which interfaces are being changed, and what became of the last change of each. It goes on while
/// the overview is closed: who opens it meanwhile sees what is under way. Main thread.
class OverviewChanges : public QObject
{
    Q_OBJECT

public:
    explicit OverviewChanges(const AddressChanger &changer);

    ChangesUnderWay &underWay() { return m_underWay; }
    const ChangesUnderWay &underWay() const { return m_underWay; }
    std::optional<ChangeOutcome> outcomeOf(const QString &device) const;
    void forgetOutcomes() { m_outcomes.clear(); }

Q_SIGNALS:
    void changed();

private:
    void begin(const QString &device);
    void end(const QString &device, const ChangeOutcome &outcome);

    ChangesUnderWay m_underWay;
    QHash<QString, ChangeOutcome> m_outcomes;
};

} // namespace quillon
