// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "cloud/CloudSignIn.h"

namespace quillon {

/// Who is signed in to which account. Main thread.
class CloudAccountModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        bool isOffered = false; ///< an account can be signed in to
        bool isSignedIn = false;
        QString account = {};
        /// What the account can do, what signing out left, or what became of a new passphrase.
        QString hint = {};

        bool operator==(const State &) const = default;
    };

    CloudAccountModel();

    /// Who signs in and out; outlives this.
    void use(CloudSignIn &signIn);

    const State &state() const { return m_state.get(); }

    void signOut();
    /// Says it of the account that is signed in to.
    void say(const QString &hint);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void look();

    CloudSignIn *m_signIn = nullptr;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
