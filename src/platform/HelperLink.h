// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

using ErrorHandler = std::function<void(const Error &)>;
/// Called once: none is success.
using ErrorReply = std::function<void(const std::optional<Error> &)>;

/// One connection to a peer program. States: made, resumed, invalidated. Calls may come once it is
/// resumed. A call made afterwards, or pending when it is invalidated, ends in its error handler:
/// for each call exactly one of reply and error handler is called, once, on any thread, never
/// before the call returns. A peer that hangs ends in the error handler after the time limit of the
/// contract.
class XPCConnection
{
public:
    virtual ~XPCConnection() = default;

    /// Called at most once, on any thread, when the peer is gone.
    virtual void setInvalidationHandler(std::function<void()> handler) = 0;
    virtual void resume() = 0;
};

/// The unprivileged service of the session.
class XPCServiceConnection : public XPCConnection
{
public:
    virtual void installHelperToolWithReply(ErrorReply reply, ErrorHandler errorHandler) = 0;
    virtual void setupAuthorizationRights() = 0;
    /// The helper's endpoint, or none when it cannot be reached, and authorization data.
    virtual void connectWithEndpointAndAuthorizationReply(
        std::function<void(const std::optional<QString> &endpoint, const QByteArray &authorization)>
            reply,
        ErrorHandler errorHandler) = 0;
};

/// The privileged helper tool. It decides by who calls, not by the authorization data.
class HelperToolConnection : public XPCConnection
{
public:
    virtual void getVersionWithReply(
        std::function<void(const QString &version)> reply, ErrorHandler errorHandler) = 0;
    virtual void changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(
        const QString &device, const QString &address, bool deviceIsWiFi,
        const QByteArray &authorization, ErrorReply reply, ErrorHandler errorHandler) = 0;
    virtual void uninstallWithAuthorizationAndReply(
        const QByteArray &authorization, ErrorReply reply, ErrorHandler errorHandler) = 0;
};

/// Makes connections and the authorization. Main thread.
class HelperLink
{
public:
    virtual ~HelperLink() = default;

    /// The external form of a fresh authorization without rights: 32 bytes.
    virtual Result<QByteArray> createAuthorization() = 0;
    virtual std::shared_ptr<XPCServiceConnection> connectToService(const QString &serviceName) = 0;
    virtual std::shared_ptr<HelperToolConnection> connectToListenerEndpoint(
        const QString &endpoint) = 0;
};

} // namespace quillon
