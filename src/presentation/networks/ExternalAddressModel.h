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

    /// "" before anything is known; that an answer was of no use is said in the user's language of
    /// today.
    QString text() const;
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
