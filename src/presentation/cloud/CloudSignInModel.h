// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "cloud/CloudSignIn.h"

#include <QStringList>

#include <utility>

namespace quillon {

/// The dialog in which a person signs in to an account. Passwords are in no state and no message;
/// they are forgotten when the dialog closes. Main thread.
class CloudSignInModel : public QObject
{
    Q_OBJECT

public:
    enum class Field
    {
        Nothing,
        Address,
        User,
        Password,
        Folder,
        Passphrase,
        RepeatedPassphrase,
        Certificate, ///< the question about it
    };
    struct Line
    {
        enum class Kind
        {
            Progress,
            Notice,
            Failure,
        } kind = Kind::Progress;
        QString text = {};

        bool operator==(const Line &) const = default;
    };
    struct State
    {
        bool isOpen = false;
        bool isBusy = false;
        CloudAccount::Kind kind = CloudAccount::Kind::WebDav;
        bool asksToRepeat = false; ///< the passphrase: the account is new
        Line line = {};
        /// "3A:F0:…" of the certificate that is asked about, whole; "" when none is.
        QString fingerprint = {};

        bool operator==(const State &) const = default;
    };

    CloudSignInModel();

    /// Who signs in; outlives this. Before, the dialog does not open.
    void use(CloudSignIn &signIn);

    const State &state() const { return m_state.get(); }
    /// What stands in a field.
    const QString &text(Field field) const;
    /// The fingerprint in pieces that two people can read to each other.
    QStringList fingerprintGroups() const;

    /// With what is known of the account, or was said last; never with a password.
    void open();
    /// Gives up what is under way and forgets the passwords.
    void close();
    /// While an attempt is under way nothing of the form changes.
    void choose(CloudAccount::Kind kind);
    void edit(Field field, const QString &text);
    void signIn();
    /// The person has compared the fingerprint: signs in with that certificate.
    void acceptCertificate();
    /// Gives up what is under way, for the form to be changed; else closes.
    void cancel();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// The person is to say it, or to say it anew.
    void fieldWanted(quillon::CloudSignInModel::Field field);
    /// The dialog has closed.
    void signedIn();

private:
    QString &textOf(Field field);
    void begin();
    /// What of the form is said: of one kind of account, and with a folder in one spelling.
    CloudSignIn::Wanted said() const;
    /// What is missing, before anybody is asked.
    std::pair<Field, QString> missing() const;
    void refuse(Field field, const Line &line);
    void showProgress();
    void take(const CloudSignIn::Problem &problem);
    void takeSuccess();
    void remember();
    void forgetSecrets();

    CloudSignIn *m_signIn = nullptr;
    CloudSignIn::Wanted m_form; ///< as it was typed
    QByteArray m_fingerprint;   ///< that is asked about
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
