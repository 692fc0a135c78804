// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudSecrets.h"
#include "platform/CloudStorage.h"

#include <QObject>

namespace quillon {

class RandomSource;
class Scheduler;

/// Opens the key of an account by its passphrase, or makes one for an account that has none. The
/// work that a passphrase costs is done in the background. Main thread.
class AccountUnlocking : public QObject
{
public:
    /// Why there is no key, where the account itself did what it was asked for.
    enum class Obstacle
    {
        NotRepeated,     ///< the account is new, and the passphrase was said once
        RepeatedOther,   ///< the second time another one
        TooShort,        ///< for a new account
        WrongPassphrase, ///< the account has another one
        Damaged,         ///< the key file
        Newer,           ///< the key file is of a later version of the program
        KeyLost,         ///< there are files, and no key file
        NoMemory,        ///< or no random bytes
    };
    struct Opened
    {
        std::shared_ptr<const OpenedKey> key;
        bool isNew = false; ///< put() has to write it
    };
    using Result = std::variant<Opened, CloudError, Obstacle>;
    using Done = std::function<void(const Result &)>;
    /// False: another computer was faster, so its key is to be opened.
    using Put = std::function<void(const CloudResult<bool> &)>;
    struct Collaborators
    {
        CloudStorage &storage;
        Scheduler &scheduler;
        RandomSource &random;
        PassphraseCost cost;
    };

    /// The fewest characters of a new passphrase.
    static constexpr qsizetype shortestPassphrase = 8;

    /// As the key is made of it: one spelling for what keyboards and systems spell in several ways.
    static QByteArray bytesOf(const QString &passphrase);
    /// Of one that is to be made.
    static bool isTooShort(const QString &passphrase);

    explicit AccountUnlocking(const Collaborators &collaborators);

    /// Both call back once, in a later turn, unless this goes before; the callback may destroy it.
    void open(const QString &passphrase, const QString &repeatedPassphrase, Done done);
    /// Writes the key file of a new account.
    void put(const QByteArray &file, Put done);

private:
    template <typename Reply>
    auto guarded(Reply reply);
    void unwrap(const QByteArray &file);
    void lookForFiles();
    void makeKey();
    void readBack(const QByteArray &file, const Put &done);
    void finish(const Result &result);

    Collaborators m_deps;
    QByteArray m_passphrase; ///< as the key is made of it
    QByteArray m_repeated;
    Done m_done;
};

} // namespace quillon
