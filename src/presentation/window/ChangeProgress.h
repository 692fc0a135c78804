// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/ChangesUnderWay.h"
#include "presentation/window/AddressFieldLine.h"

#include <QHash>
#include <QObject>

#include <optional>

namespace quillon {

/// Which interfaces are being changed, and what the window says of the last change of each. Main
/// thread.
class ChangeProgress : public QObject
{
    Q_OBJECT

public:
    explicit ChangeProgress(const AddressChanger &changer);

    ChangesUnderWay &underWay() { return m_underWay; }
    const ChangesUnderWay &underWay() const { return m_underWay; }
    /// What there is to say of a device that has the address `current`; nothing, where the change
    /// has left it with another one.
    std::optional<AddressFieldLine> lineFor(const QString &device, const QString &current) const;
    /// The device has the address `current` now. A result is of no use any more once the address
    /// that it tells of was seen and has been replaced, even when that comes back.
    void seeAddress(const QString &device, const QString &current);
    /// The device could be read: a result that says that it did not tell its address is over.
    void forgetUnreadAddress(const QString &device);
    /// The user has seen the result and goes on, or the device has gone.
    void forgetResult(const QString &device) { m_results.remove(device); }

Q_SIGNALS:
    void changed();

private:
    struct Result
    {
        QString address; ///< that the device had afterwards, "" where it did not say
        AddressFieldLine line;
        bool wasSeen = false; ///< the device was seen with this address
    };

    void end(const QString &device, const ChangeOutcome &outcome);

    ChangesUnderWay m_underWay;
    QHash<QString, Result> m_results;
};

} // namespace quillon
