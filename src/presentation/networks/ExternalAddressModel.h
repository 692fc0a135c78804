// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsStore.h"

#include <QObject>

namespace quillon {

class ExternalIPAddress;

/// The address under which the internet sees this computer, as the main window shows it, and the
/// button that asks for it again. Main thread.
class ExternalAddressModel : public QObject
{
    Q_OBJECT

public:
    ExternalAddressModel(SettingsStore &settings, ExternalIPAddress &externalAddress);
    ~ExternalAddressModel() override;

    /// "" before anything is known.
    QString text() const { return m_settings.getString(m_key); }
    /// Asks whether or not that happens by itself; the button then looks normal again.
    void refreshExternalIP();

Q_SIGNALS:
    /// text() changed.
    void changed();
    void refreshButtonReset();

private:
    SettingsStore &m_settings;
    ExternalIPAddress &m_externalAddress;
    const QString m_key;
    SettingsStore::Token m_observed;
};

} // namespace quillon
