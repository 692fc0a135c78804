// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "cloud/CloudPassphrase.h"

namespace quillon {

/// The dialog in which a person gives the account another passphrase. What is typed is in no state
/// and no message; it is forgotten when the dialog closes. Main thread.
class PassphraseModel : public QObject
{
    Q_OBJECT

public:
    enum class Field
    {
        Nothing,
        Current,
        Passphrase,
        Repeated,
    };
    struct State
    {
        bool isOpen = false;
        bool isBusy = false;
        bool isTooLate = false; ///< to give up what is under way
        QString progress = {};
        QString failure = {};

        bool operator==(const State &) const = default;
    };

    PassphraseModel();

    /// Who changes it; outlives this. Before, the dialog does not open.
    void use(CloudPassphrase &passphrase);

    const State &state() const { return m_state.get(); }
    /// What stands in a field.
    const QString &text(Field field) const;

    void open();
    /// Forgets what was typed and gives up what is under way; where it is too late for that, it
    /// goes on, and is told of.
    void close();
    /// While a change is under way nothing of the form changes.
    void edit(Field field, const QString &text);
    void change();
    /// Gives up what is under way, for the form to be changed; else closes.
    void cancel();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// The person is to say it, or to say it anew.
    void fieldWanted(quillon::PassphraseModel::Field field);
    /// What became of it, where the dialog does not say so, in the user's language.
    void told(const QString &text);

private:
    QString &textOf(Field field);
    void showProgress();
    void take(const CloudPassphrase::Problem &problem);
    void takeSuccess();
    void forgetSecrets();

    CloudPassphrase *m_passphrase = nullptr;
    CloudPassphrase::Wanted m_form; ///< as it was typed
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
