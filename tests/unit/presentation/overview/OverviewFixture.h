// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/NetworkKeys.h"
#include "base/NotificationNames.h"
#include "presentation/overview/Overview.h"
#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

/// The overview of a machine with a wired and a Wi-Fi interface. The Wi-Fi interface is the first
/// row.
class OverviewFixture : public DeviceModelsFixture
{
protected:
    OverviewController &open()
    {
        overview.openOverviewWindow();
        return *overview.controller();
    }
    const OverviewCell::State &row(int index) const
    {
        return overview.controller()->cell(index)->state();
    }
    const OverviewCell::State &wiredRow() const { return row(1); }
    const OverviewCell::State &wifiRow() const { return row(0); }
    QList<OverviewCell::State> rows() const
    {
        QList<OverviewCell::State> all;
        for (int index = 0; index < overview.controller()->rowCount(); ++index) {
            all.append(row(index));
        }
        return all;
    }
    /// How often it was emitted from now on; goes on while this fixture lives.
    template <typename Sender, typename Signal>
    std::shared_ptr<int> count(Sender &sender, Signal signal)
    {
        const auto times = std::make_shared<int>(0);
        QObject::connect(&sender, signal, &listener, [times] { ++*times; });
        return times;
    }
    void set(const QString &device, const std::function<void(DeviceRecord &)> &change)
    {
        devices.update(device, change);
    }
    void tellOverview(const QString &device, const QVariantMap &entry)
    {
        notifications.post(notifications::updateOverview, nullptr, {{device, entry}});
    }
    static QVariantMap ticking(const QString &text, bool isPaused = false)
    {
        QVariantMap entry{
            {QStringLiteral("label"), QVariantMap{{QStringLiteral("display"), text}}}};
        if (isPaused) {
            entry[QStringLiteral("isPaused")] = QVariantMap{{QStringLiteral("remaining"), 7}};
        }
        return entry;
    }

    Overview overview{
        {settings, scheduler, notifications, devices, current, changer, timers, presence, helper}};
    QObject listener;
};

} // namespace quillon::test
