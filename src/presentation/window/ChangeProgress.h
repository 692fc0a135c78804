// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/window/AddressFieldLine.h"

#include <QHash>
#include <QObject>

#include <optional>

namespace quillon {

class AddressChanger;
struct ChangeOutcome;

/// Which interfaces are being changed, whoever asked for it, and what became of the last change of
/// each. Main thread.
class ChangeProgress : public QObject
{
    Q_OBJECT

public:
    explicit ChangeProgress(const AddressChanger &changer);

    bool isUnderWay(const QString &device) const { return m_underWay.contains(device); }
    /// What there is to say of a device that has the address `current`: once it has another one,
    /// nothing.
    std::optional<AddressFieldLine> lineFor(const QString &device, const QString &current) const;
    /// The user has seen the result and goes on.
    void forgetResult(const QString &device) { m_results.remove(device); }

Q_SIGNALS:
    void changed();

private:
    struct Result
    {
        QString address; ///< that the device had afterwards
        AddressFieldLine line;
    };

    void begin(const QString &device);
    void end(const QString &device, const ChangeOutcome &outcome);

    QHash<QString, int> m_underWay; ///< never 0
    QHash<QString, Result> m_results;
};

} // namespace quillon
