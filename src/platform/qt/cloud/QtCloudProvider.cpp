// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/QtCloudProvider.h"

#include "platform/qt/cloud/FolderStorage.h"
#include "platform/qt/cloud/WebDavAddressSearch.h"
#include "platform/qt/cloud/WebDavStorage.h"

#include <utility>

namespace quillon {

QtCloudProvider::QtCloudProvider(Scheduler &scheduler, WebDavTransfer::Limits limits)
    : m_scheduler(scheduler)
    , m_limits(limits)
{
}

std::unique_ptr<CloudStorage> QtCloudProvider::storage(
    const CloudAccount &account, const QString &password)
{
    if (account.kind == CloudAccount::Kind::Folder) {
        return std::make_unique<FolderStorage>(m_scheduler, account.folder);
    }
    return std::make_unique<WebDavStorage>(account, password, m_limits);
}

std::unique_ptr<CloudProvider::Request> QtCloudProvider::findWebDavAddress(
    const WebDavSignIn &signIn, Found found)
{
    return std::make_unique<WebDavAddressSearch>(signIn, std::move(found), m_limits);
}

} // namespace quillon
