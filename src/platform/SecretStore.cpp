// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SecretStore.h"

#include "base/Localized.h"

namespace quillon {

QString secretMessage(SecretStore::Problem problem)
{
    switch (problem) {
    case SecretStore::Problem::NoKeyring:
        return localized("There is no keyring in this session to keep the password in.");
    case SecretStore::Problem::Refused:
        return localized("The keyring was not unlocked.");
    case SecretStore::Problem::TooLate:
    case SecretStore::Problem::Failed:
        break;
    }
    return localized("The keyring did not answer.");
}

} // namespace quillon
