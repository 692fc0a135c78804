// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RadioSwitch.h"

#include <QHash>
#include <QSocketNotifier>
#include <QString>

#include <cstdint>
#include <memory>

namespace quillon {

/// The kernel's switches of radios (rfkill), which it tells of whoever may read their device: each
/// one that is there when it is opened, and each change. On most systems everybody may. Main
/// thread.
class RfkillRadioSwitch : public RadioSwitch
{
public:
    explicit RfkillRadioSwitch(const QString &device = QStringLiteral("/dev/rfkill"));
    ~RfkillRadioSwitch() override;

    bool isOff() const override;
    void watch(std::function<void()> changed) override { m_changed = std::move(changed); }

private:
    enum class Reading
    {
        Taken,
        NothingMore, ///< for now
        Ended,       ///< the device tells nothing any more
    };
    Reading readOne();
    void read();

    /// Of each Wi-Fi radio, by the kernel's number of its switch: whether it is blocked.
    QHash<std::uint32_t, bool> m_isBlocked;
    std::function<void()> m_changed;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quillon
