// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/ChangeOutcome.h"

#include <QHash>
#include <QObject>

namespace quillon {

class AddressChanger;

/// What a window can ask for that changes the address of an interface.
enum class ChangeRequest
{
    None,
    Randomize,
    Apply,
    Restore,
};

/// Which interfaces are being changed, whoever asked for it, and what the window that holds this
/// asked for. Main thread.
class ChangesUnderWay : public QObject
{
    Q_OBJECT

public:
    explicit ChangesUnderWay(const AddressChanger &changer);

    bool contains(const QString &device) const { return m_underWay.contains(device); }
    /// What the change under way was asked for; none where it came from elsewhere.
    ChangeRequest requestOf(const QString &device) const
    {
        return m_underWay.value(device).request;
    }
    /// Asks for a change of `device`: it is under way from now on.
    void ask(const QString &device, ChangeRequest request);

Q_SIGNALS:
    void began(const QString &device);
    /// It turned out that there was nothing to change.
    void spared(const QString &device);
    /// Another one of the same interface may still be under way.
    void ended(const QString &device, const ChangeOutcome &outcome);

private:
    struct UnderWay
    {
        int changes = 0; ///< never 0
        /// It was asked for, and nothing has begun since: what begins next is counted already.
        bool isAwaited = false;
        ChangeRequest request = ChangeRequest::None;
    };

    void begin(const QString &device);
    void spare(const QString &device);
    void end(const QString &device, const ChangeOutcome &outcome);
    void endOne(const QString &device);

    QHash<QString, UnderWay> m_underWay;
};

} // namespace quillon
