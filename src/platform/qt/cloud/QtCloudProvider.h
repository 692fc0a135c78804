// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudProvider.h"
#include "platform/qt/cloud/WebDavTransfer.h"

namespace quillon {

class Scheduler;

/// Accounts by QNetworkAccessManager and by the disk. The scheduler outlives it and its storages.
class QtCloudProvider : public CloudProvider
{
public:
    explicit QtCloudProvider(Scheduler &scheduler, WebDavTransfer::Limits limits = {});

    std::unique_ptr<CloudStorage> storage(
        const CloudAccount &account, const QString &password) override;
    std::unique_ptr<Request> findWebDavAddress(const WebDavSignIn &signIn, Found found) override;

private:
    Scheduler &m_scheduler;
    const WebDavTransfer::Limits m_limits;
};

} // namespace quillon
