// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsStore.h"

#include <QObject>

#include <vector>

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
    /// What is to be said beside it, in a few words: that it is being looked up, that no answer
    /// came, that nobody looks it up by itself; "" when the address says all.
    QString note() const;
    /// The same in a sentence, with what can be done.
    QString explanation() const;
    /// Asks whether or not that happens by itself; the button then looks normal again.
    void refreshExternalIP();

Q_SIGNALS:
    /// text(), note() or explanation() changed.
    void changed();
    void refreshButtonReset();

private:
    enum class Standing
    {
        Told,
        LookingUp,
        NoAnswer,
        SwitchedOff, ///< and nothing is known
    };
    Standing standing() const;
    bool isKnown() const;

    SettingsStore &m_settings;
    ExternalIPAddress &m_externalAddress;
    const QString m_key;
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
