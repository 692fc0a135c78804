// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccount.h"

#include <QObject>

#include <optional>

namespace quillon {

/// Signs in to an account, and out of it. Nothing is kept of an attempt that fails or is given up.
/// Main thread.
class CloudSignIn : public QObject
{
    Q_OBJECT

public:
    /// What a person says.
    struct Wanted
    {
        CloudAccount::Kind kind = CloudAccount::Kind::WebDav;
        QString address = {}; ///< WebDAV: typed, or copied from a browser
        QString user = {};
        QString password = {};
        QString folder = {}; ///< of a folder: its path
        QString passphrase = {};
        /// For a new account, which is asked for: the passphrase once more.
        QString repeatedPassphrase = {};
        QByteArray fingerprint = {}; ///< of a certificate that the person has accepted
    };
    enum class Step
    {
        None,      ///< nothing is under way
        Looking,   ///< for the person's files at the server
        Trying,    ///< what the account can do
        Unlocking, ///< its key, by the passphrase
        Keeping,   ///< the secrets, in the keyring
    };
    /// Why it did not succeed, and what the person may do about it.
    struct Problem
    {
        QString text = {};
        enum class Remedy
        {
            Another,           ///< say something else and try again
            AcceptCertificate, ///< compare `fingerprint`, and accept it
            RepeatPassphrase,  ///< the account is new: its passphrase is to be said twice
            AnotherPassphrase, ///< the account has another one
        } remedy = Remedy::Another;
        QByteArray fingerprint = {};
        /// What is to be said anew; it gets the keyboard.
        enum class About
        {
            Nothing,
            Address,
            Password,
            Folder,
            Passphrase,
        } about = About::Nothing;
    };

    virtual Step step() const = 0;
    /// Gives up what is under way.
    virtual void begin(const Wanted &wanted) = 0;
    virtual void cancel() = 0;
    /// Secrets and account are forgotten; records and settings stay on this computer.
    virtual void signOut() = 0;
    /// None while nobody is signed in.
    virtual std::optional<CloudAccount> account() const = 0;

Q_SIGNALS:
    void stepChanged();
    void failed(const quillon::CloudSignIn::Problem &problem);
    /// `abilities` says in a sentence what the account can do.
    void signedIn(const QString &abilities);
    void accountChanged();
};

} // namespace quillon
