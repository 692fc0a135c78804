// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/WatchedHelperLink.h"

#include <utility>

namespace quillon::test {

namespace {

class WatchedConnection : public HelperToolConnection
{
public:
    WatchedConnection(std::shared_ptr<HelperToolConnection> connection, WatchedHelperLink &link,
        const Scheduler &clock)
        : m_connection(std::move(connection))
        , m_link(link)
        , m_clock(clock)
    {
    }

    void setInvalidationHandler(std::function<void()> handler) override
    {
        m_connection->setInvalidationHandler(std::move(handler));
    }
    void resume() override { m_connection->resume(); }
    void getVersionWithReply(
        std::function<void(const QString &)> reply, ErrorHandler errorHandler) override
    {
        m_connection->getVersionWithReply(std::move(reply), std::move(errorHandler));
    }
    void changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(const QString &device,
        const QString &address, bool deviceIsWiFi, const QByteArray &authorization,
        ErrorReply reply, ErrorHandler errorHandler) override
    {
        m_link.changes.append({device, address, m_clock.now(), std::chrono::steady_clock::now()});
        m_connection->changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(
            device, address, deviceIsWiFi, authorization,
            [&link = m_link, reply = std::move(reply)](const std::optional<Error> &error) {
                if (link.whenAnswered) {
                    link.whenAnswered();
                }
                reply(error);
            },
            std::move(errorHandler));
    }
    void uninstallWithAuthorizationAndReply(
        const QByteArray &authorization, ErrorReply reply, ErrorHandler errorHandler) override
    {
        m_connection->uninstallWithAuthorizationAndReply(
            authorization, std::move(reply), std::move(errorHandler));
    }

private:
    std::shared_ptr<HelperToolConnection> m_connection;
    WatchedHelperLink &m_link;
    const Scheduler &m_clock;
};

} // namespace

std::shared_ptr<HelperToolConnection> WatchedHelperLink::connectToListenerEndpoint(
    const QString &endpoint)
{
    return std::make_shared<WatchedConnection>(
        m_link.connectToListenerEndpoint(endpoint), *this, m_clock);
}

} // namespace quillon::test
