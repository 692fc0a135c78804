// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/cloud/CloudAccountModel.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString told(const CloudAccount &account)
{
    if (account.kind == CloudAccount::Kind::Folder) {
        return filled(localized("Signed in to the folder %@"), {account.folder});
    }
    const int port = account.server.port();
    const QString server =
        port < 0 ? account.server.host() : u"%1:%2"_s.arg(account.server.host()).arg(port);
    return filled(localized("Signed in as %@ at %@"), {account.user, server});
}

} // namespace

CloudAccountModel::CloudAccountModel() = default;

void CloudAccountModel::use(CloudSignIn &signIn)
{
    m_signIn = &signIn;
    connect(m_signIn, &CloudSignIn::accountChanged, this, &CloudAccountModel::look);
    connect(m_signIn, &CloudSignIn::signedIn, this, [this](const QString &abilities) {
        look();
        m_state.update([&abilities](State &state) { state.hint = abilities; });
    });
    look();
}

void CloudAccountModel::signOut()
{
    if (!m_state->isSignedIn) {
        return;
    }
    m_signIn->signOut();
    look();
    if (!m_state->isSignedIn) {
        m_state.update([](State &state) {
            state.hint =
                localized("Signed out. Rules, history and settings stay on this computer.");
        });
    }
}

void CloudAccountModel::say(const QString &hint)
{
    if (m_state->isSignedIn) {
        m_state.update([&hint](State &state) { state.hint = hint; });
    }
}

void CloudAccountModel::look()
{
    const auto account = m_signIn->account();
    m_state.update([&account](State &state) {
        const QString text = account ? told(*account) : QString();
        if (text != state.account) {
            state.hint.clear();
        }
        state = {true, account.has_value(), text, state.hint};
    });
}

} // namespace quillon
