// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/ReleasedDevices.h"

#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

namespace quillon {

ReleasedDevices::ReleasedDevices(SettingsStore &settings)
    : m_settings(settings)
{
}

void ReleasedDevices::add(const QString &device)
{
    m_inHand.insert(device);
    QStringList all = names();
    if (!all.contains(device)) {
        write(all << device);
    }
}

void ReleasedDevices::abandon(const QString &device)
{
    m_inHand.remove(device);
}

void ReleasedDevices::remove(const QString &device)
{
    m_inHand.remove(device);
    QStringList all = names();
    if (all.removeAll(device) > 0) {
        write(all);
    }
}

QStringList ReleasedDevices::abandoned() const
{
    QStringList all = names();
    all.removeIf([this](const QString &device) { return m_inHand.contains(device); });
    return all;
}

QStringList ReleasedDevices::names() const
{
    return m_settings.get(keys::releasedDevices).toStringList();
}

void ReleasedDevices::write(const QStringList &names)
{
    m_settings.set(keys::releasedDevices, QVariantList(names.begin(), names.end()));
    m_settings.flush();
}

} // namespace quillon
