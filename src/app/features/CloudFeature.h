// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/AccountSignIn.h"
#include "cloud/CloudAccounts.h"
#include "cloud/CloudSession.h"
#include "cloud/PassphraseChange.h"
#include "sync/CloudAccountWatch.h"
#include "sync/CloudImport.h"
#include "sync/CloudSync.h"
#include "sync/RecordMirror.h"
#include "sync/SettingsMirror.h"

namespace quillon {

class Notifier;
class RecordStore;
struct Platform;

/// What a person's computers share, put together: the account, who is signed in to it, what is
/// mirrored of records and settings, and the rounds that bring it there and back.
struct CloudFeature
{
    CloudFeature(const Platform &platform, Notifier &notifier, RecordStore &store);

    /// The records are open.
    void begin();

    CloudAccounts accounts;
    RecordMirror mirror;
    SettingsMirror settings;
    CloudSync sync;
    CloudAccountWatch watch;
    CloudImport import;
    AccountSignIn signIn;
    PassphraseChange passphrase;
    CloudSession session;
};

} // namespace quillon
