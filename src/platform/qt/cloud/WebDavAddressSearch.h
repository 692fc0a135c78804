// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudProvider.h"
#include "platform/qt/cloud/WebDavConnection.h"

#include <QObject>

namespace quillon {

/// Asks the candidates of webDavCandidates() one after the other which of them is a folder.
class WebDavAddressSearch : public CloudProvider::Request
{
public:
    WebDavAddressSearch(
        const WebDavSignIn &signIn, CloudProvider::Found found, WebDavTransfer::Limits limits = {});

private:
    void askNext();
    void answered(const CloudResult<WebDavAnswer> &result);
    void end(const CloudResult<QUrl> &result);

    QList<QUrl> m_candidates; ///< those that were not asked
    CloudError m_problem;     ///< what is to be said when none of them is one
    const CloudProvider::Found m_found;
    QObject m_context;
    WebDavConnection m_connection;
};

} // namespace quillon
