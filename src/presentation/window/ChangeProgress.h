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
    /// What there is to say of a device that has the address `current`: once it has another one,
    /// nothing.
    std::optional<AddressFieldLine> lineFor(const QString &device, const QString &current) const;
    /// The user has seen the result and goes on.
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
    };

    void begin(const QString &device);
    void spare(const QString &device);
    void end(const QString &device, const ChangeOutcome &outcome);
    void endOne(const QString &device);

    QHash<QString, UnderWay> m_underWay;
    QHash<QString, Result> m_results;
};

} // namespace quillon
