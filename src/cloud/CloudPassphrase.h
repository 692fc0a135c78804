// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

/// Gives the account another passphrase. Main thread.
class CloudPassphrase : public QObject
{
    Q_OBJECT

public:
    /// What a person says.
    struct Wanted
    {
        QString current = {};
        QString passphrase = {};
        QString repeated = {};
    };
    enum class Step
    {
        None,     ///< nothing is under way
        Reading,  ///< the account's key file
        Checking, ///< the current passphrase
        Writing,  ///< the new key file: it cannot be given up any more
        Keeping,  ///< the new key file, in the keyring
    };
    struct Problem
    {
        QString text = {};
        /// What is to be said anew; it gets the keyboard.
        enum class About
        {
            Nothing,
            Current,
            Passphrase,
            Repeated,
        } about = About::Nothing;
    };

    virtual Step step() const = 0;
    /// Nothing while another one is under way.
    virtual void begin(const Wanted &wanted) = 0;
    /// False when it is too late: it goes on, and is told of.
    virtual bool cancel() = 0;

Q_SIGNALS:
    void stepChanged();
    /// Either the current passphrase or the new one opens the account; the text says which, or that
    /// it is not known.
    void failed(const quillon::CloudPassphrase::Problem &problem);
    /// The new one opens the account, and the current one does not any more.
    void changed();
};

} // namespace quillon
