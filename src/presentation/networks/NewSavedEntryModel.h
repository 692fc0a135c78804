// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "devices/HexFormatter.h"
#include "networks/SavedEntries.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <utility>

namespace quillon {

/// A form that saves an address or a network by hand. Main thread.
class NewSavedEntryModel : public QObject
{
    Q_OBJECT

public:
    enum class Kind
    {
        Address,
        Network,
    };
    struct Line
    {
        enum class Kind
        {
            Hint,
            Notice,
            Failure,
        };

        Kind kind = Kind::Hint;
        QString text;

        bool operator==(const Line &) const = default;
    };
    struct State
    {
        QString address; ///< of the network its access point's, the BSSID
        QString name;    ///< of the network the one that it broadcasts, the SSID
        Line line;       ///< what is to be said of the two
        bool canAdd = false;

        bool operator==(const State &) const = default;
    };

    NewSavedEntryModel(SettingsStore &settings, Kind kind);
    ~NewSavedEntryModel() override;

    Kind kind() const { return m_kind; }
    const State &state() const { return m_state.get(); }

    /// Empties the form.
    void begin();
    /// False, and nothing changes, for a text that the entry rules of addresses refuse.
    bool editAddress(const QString &text);
    void editName(const QString &text);
    /// Saves it. False where it cannot be saved: then the line says why.
    bool add();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// An entry was saved.
    void added();

private:
    const QString &list() const;
    QString key() const;
    /// The name under which it is saved already, "" where it is not.
    QString savedName() const;
    /// Whether it can be saved, and what is to be said of it; `isAsked`: the user wants it saved.
    std::pair<bool, Line> verdict(bool isAsked) const;
    void look(bool isAsked = false);

    SettingsStore &m_settings;
    const Kind m_kind;
    HexFormatter m_rules;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    SettingsStore::Token m_observed;
};

} // namespace quillon
