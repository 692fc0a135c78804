// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeHelper.h"

#include "contract/Names.h"
#include "contract/Validation.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeScheduler.h"

#include <algorithm>
#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int authorizationSize = contract::authorizationSize;

Error gone()
{
    return {busErrorDomain, 0, u"the peer is gone"_s};
}

Error refused(const contract::ErrorName &error)
{
    return {QLatin1String(error.name), error.code, {}};
}

} // namespace

/// The states that both kinds of connection share: made, resumed, invalidated.
class FakeHelper::Link
{
public:
    Link(FakeHelper &peer, bool isThere)
        : m_peer(peer)
        , m_isThere(isThere)
    {
    }

    void open()
    {
        if (m_state == Made) {
            m_state = Resumed;
            if (!m_isThere) {
                invalidate();
            }
        }
    }

    void invalidate()
    {
        if (std::exchange(m_state, Invalidated) != Invalidated && m_invalidated) {
            // A copy: the handler may take itself away while it runs.
            m_peer.m_scheduler.inBackground([handler = m_invalidated] { handler(); });
        }
    }

    /// True when a call may go out; else it ends in its error handler.
    bool mayCall(const ErrorHandler &errorHandler)
    {
        if (m_state != Resumed) {
            m_peer.answer([errorHandler] { errorHandler(gone()); });
        }
        return m_state == Resumed;
    }

protected:
    enum State
    {
        Made,
        Resumed,
        Invalidated,
    };

    FakeHelper &m_peer;
    const bool m_isThere;
    State m_state = Made;
    std::function<void()> m_invalidated;
};

class FakeHelper::Service : public XPCServiceConnection, public Link
{
public:
    // A well-known name is started on demand, so that the connection itself always opens.
    Service(FakeHelper &peer, const QString &name)
        : Link(peer, true)
        , m_isOurs(name == QLatin1String(contract::serviceName))
    {
    }

    void setInvalidationHandler(std::function<void()> handler) override
    {
        m_invalidated = std::move(handler);
    }
    void resume() override { open(); }

    void installHelperToolWithReply(ErrorReply reply, ErrorHandler errorHandler) override
    {
        m_peer.m_journal << u"install"_s;
        if (!reachable(errorHandler)) {
            return;
        }
        if (!m_peer.installFails) {
            m_peer.installed = true;
        }
        const auto error = m_peer.installFails
                               ? std::optional(refused(contract::error::installFailed))
                               : std::nullopt;
        m_peer.answer([reply, error] { reply(error); });
    }

    void setupAuthorizationRights() override { m_peer.m_journal << u"rights"_s; }

    void connectWithEndpointAndAuthorizationReply(
        std::function<void(const std::optional<QString> &, const QByteArray &)> reply,
        ErrorHandler errorHandler) override
    {
        m_peer.m_journal << u"endpoint"_s;
        if (!reachable(errorHandler)) {
            return;
        }
        std::optional<QString> endpoint;
        if (m_peer.installed) {
            endpoint = u":1.%1"_s.arg(++m_peer.m_endpoints);
        }
        // Fresh bytes each time, so that a test sees which ones were used.
        m_peer.m_givenAuthorization =
            QByteArray(authorizationSize, static_cast<char>('a' + m_peer.m_endpoints % 26));
        m_peer.answer([&peer = m_peer, reply, endpoint, bytes = m_peer.m_givenAuthorization] {
            // The helper is there from now on: one that went meanwhile was started anew.
            if (endpoint) {
                peer.m_livingEndpoints.append(*endpoint);
            }
            reply(endpoint, bytes);
        });
    }

private:
    bool reachable(const ErrorHandler &errorHandler)
    {
        if (!mayCall(errorHandler)) {
            return false;
        }
        if (!m_isOurs || !m_peer.serviceExists) {
            m_peer.answer(
                [errorHandler] { errorHandler({busErrorDomain, 0, u"no such service"_s}); });
            return false;
        }
        if (m_peer.serviceHangs) {
            m_peer.hang(errorHandler);
            return false;
        }
        return true;
    }

    const bool m_isOurs;
};

class FakeHelper::Tool : public HelperToolConnection, public Link
{
public:
    using Link::Link;

    void setInvalidationHandler(std::function<void()> handler) override
    {
        m_invalidated = std::move(handler);
    }
    void resume() override { open(); }

    void getVersionWithReply(
        std::function<void(const QString &)> reply, ErrorHandler errorHandler) override
    {
        m_peer.m_journal << u"version"_s;
        if (listens(errorHandler)) {
            m_peer.answer([reply, version = m_peer.version] { reply(version); });
        }
    }

    void changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(const QString &device,
        const QString &address, bool deviceIsWiFi, const QByteArray &authorization,
        ErrorReply reply, ErrorHandler errorHandler) override
    {
        m_peer.m_journal << u"change"_s;
        if (!listens(errorHandler)) {
            return;
        }
        const auto error = m_peer.change({device, address, deviceIsWiFi, authorization});
        const auto answer = [&peer = m_peer, reply, error] {
            peer.answer([reply, error] { reply(error); });
        };
        if (m_peer.changeTakes.count() > 0) {
            m_peer.m_scheduler.onMainAfter(m_peer.changeTakes, answer);
        } else {
            answer();
        }
    }

    void uninstallWithAuthorizationAndReply(
        const QByteArray &, ErrorReply reply, ErrorHandler errorHandler) override
    {
        m_peer.m_journal << u"uninstall"_s;
        const bool refusing = m_peer.mood == Mood::Refusing;
        if (!refusing && m_peer.mood != Mood::Hanging) {
            m_peer.installed = false;
        }
        if (listens(errorHandler)) {
            const auto error =
                refusing ? std::optional(refused(contract::error::notAuthorized)) : std::nullopt;
            m_peer.answer([reply, error] { reply(error); });
        }
    }

private:
    bool listens(const ErrorHandler &errorHandler)
    {
        if (!mayCall(errorHandler)) {
            return false;
        }
        if (m_peer.mood == Mood::Dropping) {
            m_peer.answer([errorHandler] { errorHandler(gone()); });
            invalidate();
            return false;
        }
        if (m_peer.mood == Mood::Hanging) {
            m_peer.hang(errorHandler);
            return false;
        }
        return true;
    }
};

FakeHelper::FakeHelper(FakeScheduler &scheduler, FakeNetworkHost &host)
    : m_scheduler(scheduler)
    , m_host(host)
{
}

FakeHelper::~FakeHelper() = default;

QByteArray FakeHelper::externalForm()
{
    return QByteArray(authorizationSize, 'A');
}

void FakeHelper::answer(const std::function<void()> &reply)
{
    m_scheduler.inBackground([reply, twice = answersTwice] {
        reply();
        if (twice) {
            reply();
        }
    });
}

void FakeHelper::hang(const ErrorHandler &errorHandler)
{
    m_hanging.push_back(errorHandler);
}

std::optional<Error> FakeHelper::change(const Change &change)
{
    m_changes.append(change);
    switch (mood) {
    case Mood::Refusing:
        return refused(contract::error::notAuthorized);
    case Mood::Lying:
        return std::nullopt;
    case Mood::Obliging:
    case Mood::Hanging:
    case Mood::Dropping:
        break;
    }
    if (change.authorization.size() != authorizationSize) {
        return refused(contract::error::invalidAuthorization);
    }
    if (!contract::isValidDeviceName(change.device.toStdString())) {
        return refused(contract::error::invalidDevice);
    }
    if (!contract::unicastAddress(change.address.toStdString())) {
        return refused(contract::error::invalidAddress);
    }
    if (!m_host.giveAddress(change.device, change.address)) {
        return refused(contract::error::noSuchDevice);
    }
    return std::nullopt;
}

void FakeHelper::timeOut()
{
    for (const ErrorHandler &errorHandler : std::exchange(m_hanging, {})) {
        answer([errorHandler] { errorHandler({busErrorDomain, 0, u"no answer in time"_s}); });
    }
}

void FakeHelper::dropService()
{
    for (const auto &weak : std::exchange(m_services, {})) {
        if (const auto service = weak.lock()) {
            service->invalidate();
        }
    }
    timeOut();
}

void FakeHelper::dropHelper()
{
    m_livingEndpoints.clear();
    for (const auto &weak : std::exchange(m_tools, {})) {
        if (const auto tool = weak.lock()) {
            tool->invalidate();
        }
    }
    timeOut();
}

int FakeHelper::liveHelperConnections() const
{
    return static_cast<int>(std::count_if(
        m_tools.begin(), m_tools.end(), [](const auto &weak) { return !weak.expired(); }));
}

Result<QByteArray> FakeHelper::createAuthorization()
{
    m_journal << u"authorize"_s;
    if (!authorizes) {
        return Error{posixErrorDomain, 5, u"no random bytes"_s};
    }
    // Fresh bytes each time, the first being externalForm().
    return QByteArray(authorizationSize, static_cast<char>('A' + m_authorizations++ % 26));
}

std::shared_ptr<XPCServiceConnection> FakeHelper::connectToService(const QString &serviceName)
{
    m_journal << u"service "_s + serviceName;
    auto service = std::make_shared<Service>(*this, serviceName);
    m_services.push_back(service);
    return service;
}

std::shared_ptr<HelperToolConnection> FakeHelper::connectToListenerEndpoint(const QString &endpoint)
{
    m_journal << u"helper "_s + endpoint;
    auto tool = std::make_shared<Tool>(*this, m_livingEndpoints.contains(endpoint));
    m_tools.push_back(tool);
    return tool;
}

} // namespace quillon::test
