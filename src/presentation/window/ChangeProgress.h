// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/window/AddressFieldLine.h"
#include "presentation/window/ChangeButtons.h"

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
    /// A button asks for a change of `device`: it is under way from now on.
    void ask(const QString &device, ChangeButton button);
    /// The button that the change under way came from; none where it came from elsewhere.
    ChangeButton buttonOf(const QString &device) const { return m_underWay.value(device).button; }
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
    struct UnderWay
    {
        int changes = 0; ///< never 0
        /// A button asked, and nothing has begun since: what begins next is counted already.
        bool isAwaited = false;
        ChangeButton button = ChangeButton::None;
    };
    struct Result
    {
        QString address; ///< that the device had afterwards, "" where it did not say
        AddressFieldLine line;
        bool wasSeen = false; ///< the device was seen with this address
    };

    void begin(const QString &device);
    void spare(const QString &device);
    void end(const QString &device, const ChangeOutcome &outcome);
    void endOne(const QString &device);

    QHash<QString, UnderWay> m_underWay;
    QHash<QString, Result> m_results;
};

} // namespace quillon
