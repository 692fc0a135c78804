// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/DBusHelperLink.h"

#include "contract/Interfaces.h"
#include "contract/Names.h"
#include "platform/RandomSource.h"
#include "platform/linux/bus/BusPeer.h"

#include <QRegularExpression>

#include <cerrno>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using std::chrono::milliseconds;

constexpr milliseconds answerLimit{contract::answerLimit};
constexpr milliseconds promptLimit{contract::promptLimit};
// A version is a few characters; a bus name has at most 255 by the D-Bus specification.
constexpr qsizetype longestVersion = 64;
constexpr qsizetype longestName = 255;

bool isUniqueName(const QString &name)
{
    static const QRegularExpression unique(u"\\A:[A-Za-z0-9_-]+(\\.[A-Za-z0-9_-]+)+\\z"_s);
    return name.size() <= longestName && unique.match(name).hasMatch();
}

bool isAnswer(const QDBusMessage &message, const contract::Method &method)
{
    return message.type() == QDBusMessage::ReplyMessage &&
           message.signature() == QLatin1String(method.outputSignature);
}

Error transportError(const QDBusMessage &message)
{
    return message.type() == QDBusMessage::ErrorMessage
               ? busError(message)
               : Error{busErrorDomain, 0, u"The answer is not as agreed"_s};
}

/// What both connections do alike.
template <typename Connection>
class PeerConnection : public Connection
{
public:
    explicit PeerConnection(std::shared_ptr<BusPeer> peer)
        : m_peer(std::move(peer))
    {
    }
    ~PeerConnection() override { m_peer->setInvalidationHandler(nullptr); }

    void setInvalidationHandler(std::function<void()> handler) override
    {
        m_peer->setInvalidationHandler(std::move(handler));
    }
    void resume() override { m_peer->resume(); }

protected:
    void call(const contract::Method &method, const QVariantList &arguments, milliseconds limit,
        BusReply reply)
    {
        m_peer->call(QLatin1String(method.name), arguments, limit, std::move(reply));
    }

    /// An operation whose answer is nothing or an error of its own. It may open a prompt.
    void carryOut(const contract::Method &method, const QVariantList &arguments, ErrorReply reply,
        ErrorHandler errorHandler)
    {
        call(method, arguments, promptLimit,
            [&method, reply = std::move(reply), errorHandler = std::move(errorHandler)](
                const QDBusMessage &answer) {
                if (isAnswer(answer, method)) {
                    reply(std::nullopt);
                } else if (isContractError(answer)) {
                    reply(busError(answer));
                } else {
                    errorHandler(transportError(answer));
                }
            });
    }

private:
    const std::shared_ptr<BusPeer> m_peer;
};

class ServiceConnection : public PeerConnection<XPCServiceConnection>
{
public:
    using PeerConnection::PeerConnection;

    void installHelperToolWithReply(ErrorReply reply, ErrorHandler errorHandler) override
    {
        carryOut(
            contract::service::installHelperTool, {}, std::move(reply), std::move(errorHandler));
    }

    void setupAuthorizationRights() override
    {
        call(contract::service::setupAuthorizationRights, {}, answerLimit,
            [](const QDBusMessage &) {});
    }

    void connectWithEndpointAndAuthorizationReply(
        std::function<void(const std::optional<QString> &, const QByteArray &)> reply,
        ErrorHandler errorHandler) override
    {
        call(contract::service::connectWithEndpointAndAuthorization, {}, answerLimit,
            [reply = std::move(reply), errorHandler = std::move(errorHandler)](
                const QDBusMessage &answer) { readEndpoint(answer, reply, errorHandler); });
    }

private:
    template <typename Reply>
    static void readEndpoint(
        const QDBusMessage &answer, const Reply &reply, const ErrorHandler &errorHandler)
    {
        if (!isAnswer(answer, contract::service::connectWithEndpointAndAuthorization)) {
            errorHandler(transportError(answer));
            return;
        }
        const QString endpoint = answer.arguments().at(0).toString();
        const QByteArray authorization = answer.arguments().at(1).toByteArray();
        if (endpoint.isEmpty()) {
            reply(std::nullopt, authorization.left(contract::authorizationSize));
        } else if (isUniqueName(endpoint) && authorization.size() == contract::authorizationSize) {
            reply(endpoint, authorization);
        } else {
            errorHandler(transportError(answer));
        }
    }
};

class ToolConnection : public PeerConnection<HelperToolConnection>
{
public:
    using PeerConnection::PeerConnection;

    void getVersionWithReply(
        std::function<void(const QString &)> reply, ErrorHandler errorHandler) override
    {
        call(contract::helper::getVersion, {}, answerLimit,
            [reply = std::move(reply), errorHandler = std::move(errorHandler)](
                const QDBusMessage &answer) {
                const QString version = isAnswer(answer, contract::helper::getVersion)
                                            ? answer.arguments().at(0).toString()
                                            : QString();
                if (version.isEmpty() || version.size() > longestVersion) {
                    errorHandler(transportError(answer));
                } else {
                    reply(version);
                }
            });
    }

    void changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(const QString &device,
        const QString &address, bool deviceIsWiFi, const QByteArray &authorization,
        ErrorReply reply, ErrorHandler errorHandler) override
    {
        carryOut(contract::helper::changeAddressOfDevice,
            {device, address, deviceIsWiFi, authorization}, std::move(reply),
            std::move(errorHandler));
    }

    void uninstallWithAuthorizationAndReply(
        const QByteArray &authorization, ErrorReply reply, ErrorHandler errorHandler) override
    {
        carryOut(contract::helper::uninstall, {authorization}, std::move(reply),
            std::move(errorHandler));
    }
};

} // namespace

DBusHelperLink::DBusHelperLink(
    RandomSource &random, QDBusConnection sessionBus, QDBusConnection systemBus)
    : m_random(random)
    , m_sessionBus(std::move(sessionBus))
    , m_systemBus(std::move(systemBus))
{
}

Result<QByteArray> DBusHelperLink::createAuthorization()
{
    const QByteArray authorization = m_random.bytes(contract::authorizationSize);
    if (authorization.size() != contract::authorizationSize) {
        return Error{posixErrorDomain, EIO, u"The random source failed"_s};
    }
    return authorization;
}

std::shared_ptr<XPCServiceConnection> DBusHelperLink::connectToService(const QString &serviceName)
{
    return std::make_shared<ServiceConnection>(
        BusPeer::make(m_sessionBus, {serviceName, QLatin1String(contract::service::path),
                                        QLatin1String(contract::service::interface)}));
}

std::shared_ptr<HelperToolConnection> DBusHelperLink::connectToListenerEndpoint(
    const QString &endpoint)
{
    return std::make_shared<ToolConnection>(BusPeer::make(m_systemBus,
        {isUniqueName(endpoint) ? endpoint : QString(), QLatin1String(contract::helper::path),
            QLatin1String(contract::helper::interface)}));
}

} // namespace quillon
