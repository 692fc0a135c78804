// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudPassphrase.h"
#include "cloud/CloudSecrets.h"
#include "platform/CloudStorage.h"

namespace quillon {

class CloudAccounts;
class CloudProvider;
class RandomSource;
class Scheduler;

/// Wraps the account's key by another passphrase: reads the key file, checks the current passphrase
/// against it, writes the new one in its place if it is still the one that was read, reads it back,
/// and keeps a copy in the keyring. Main thread; what a passphrase costs is done in the background.
class PassphraseChange : public CloudPassphrase
{
    Q_OBJECT

public:
    struct Collaborators
    {
        CloudProvider &cloud;
        SecretStore &secrets;
        Scheduler &scheduler;
        RandomSource &random;
        CloudAccounts &accounts;
        PassphraseCost cost = {};
    };

    explicit PassphraseChange(const Collaborators &collaborators);
    ~PassphraseChange() override;

    Step step() const override { return m_step; }
    void begin(const Wanted &wanted) override;
    bool cancel() override;

private:
    struct Attempt;

    /// Calls `reply` while this and the attempt that is under way are there.
    template <typename Reply>
    auto guarded(Reply reply);
    void setStep(Step step);
    /// False when somebody who heard of it has given the attempt up.
    bool advance(Step step);
    bool isSignedIn() const;
    void readSecrets();
    void readKeyFile(const CloudSecrets::Kept &kept);
    void judge(const QByteArray &file);
    void wrapAnew(const QByteArray &reference, std::uint32_t number);
    void lookAgain();
    void write();
    void readBack(const std::optional<CloudError> &error);
    void judgeWritten(const CloudStorage::Content &found, const std::optional<CloudError> &error);
    void keep();
    void succeed();
    void fail(const Problem &problem);
    void fail(const CloudError &error);
    void fail(KeyFileProblem problem);
    void end();

    Collaborators m_deps;
    CloudSecrets m_secrets;
    Step m_step = Step::None;
    std::unique_ptr<Attempt> m_attempt;
};

} // namespace quillon
