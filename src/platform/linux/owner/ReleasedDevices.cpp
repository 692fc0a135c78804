// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/ReleasedDevices.h"

#include "platform/SettingsStore.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString key = u"releasedDevices"_s;

} // namespace

ReleasedDevices::ReleasedDevices(SettingsStore &settings)
    : m_settings(settings)
{
}

void ReleasedDevices::add(const QString &device)
{
    QStringList all = names();
    if (!all.contains(device)) {
        write(all << device);
    }
}

void ReleasedDevices::remove(const QString &device)
{
    QStringList all = names();
    if (all.removeAll(device) > 0) {
        write(all);
    }
}

QStringList ReleasedDevices::names() const
{
    return m_settings.get(key).toStringList();
}

void ReleasedDevices::write(const QStringList &names)
{
    m_settings.set(key, QVariantList(names.begin(), names.end()));
    m_settings.flush();
}

} // namespace quillon
