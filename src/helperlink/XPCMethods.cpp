// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "XPCMethods.h"

#include "base/Assertion.h"
#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "helperlink/Replies.h"
#include "platform/HelperLink.h"
#include "platform/NotificationCenter.h"
#include "platform/Scheduler.h"

#include <QPointer>

#include <utility>

// The condition goes into the message as it is written here.
#define QUILLON_REQUIRE(condition, operation, text)                                                \
    assertCondition(                                                                               \
        condition, "-[QuillonAppDelegate(XPCMethods) " operation "]", __FILE__, __LINE__, text)

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString serviceName = u"com.orvandel.Quillon4XPCService"_s;
const QString invalidatedText = u"Quillon connection to HelperTool invalidated\n"_s;
const QString installedText = u"Quillon4HelperTool successfully installed\n"_s;
const QString uninstalledText = u"Quillon4HelperTool successfully uninstalled\n"_s;

/// Code of the error "the service has no endpoint", in the POSIX domain.
constexpr int noEndpointCode = 25;

} // namespace

XPCMethods::XPCMethods(HelperLink &link, Scheduler &scheduler, NotificationCenter &notifications)
    : m_link(link)
    , m_scheduler(scheduler)
    , m_notifications(notifications)
{
}

XPCMethods::~XPCMethods() = default;

QString XPCMethods::helperToolVersion()
{
    return u"2.0"_s;
}

void XPCMethods::authorizeHelperTool(bool windowExists)
{
    QUILLON_REQUIRE(windowExists, "authorizeHelperTool", "self.window != nil");
    const Result<QByteArray> authorization = m_link.createAuthorization();
    QUILLON_REQUIRE(
        static_cast<bool>(authorization), "authorizeHelperTool", "err == errAuthorizationSuccess");
    m_authorization = authorization.value();
    connectToXPCService();
    m_xpcServiceConnection->setupAuthorizationRights();
}

template <typename Connection>
void XPCMethods::watch(
    const std::shared_ptr<Connection> &connection, std::shared_ptr<Connection> XPCMethods::*field)
{
    const std::weak_ptr<Connection> weak = connection;
    connection->setInvalidationHandler(
        [weak, field, self = QPointer(this), &scheduler = m_scheduler] {
            // Copies, because taking the handler away destroys what it captured.
            const auto gone = weak.lock();
            const auto owner = self;
            const auto which = field;
            Scheduler &mainThread = scheduler;
            if (gone) {
                gone->setInvalidationHandler({});
            }
            mainThread.onMain([gone, owner, which] {
                if (!owner) {
                    return;
                }
                // A connection made meanwhile is not the one that has gone.
                if (gone && (owner.data()->*which) == gone) {
                    (owner.data()->*which).reset();
                }
                owner->logText(invalidatedText);
            });
        });
}

void XPCMethods::connectToXPCService()
{
    QUILLON_REQUIRE(m_scheduler.isMainThread(), "connectToXPCService", "[NSThread isMainThread]");
    if (m_xpcServiceConnection) {
        return;
    }
    m_xpcServiceConnection = m_link.connectToService(serviceName);
    watch(m_xpcServiceConnection, &XPCMethods::m_xpcServiceConnection);
    m_xpcServiceConnection->resume();
}

void XPCMethods::connectToHelperToolEndpoint(const QString &endpoint)
{
    QUILLON_REQUIRE(
        m_scheduler.isMainThread(), "connectToHelperToolEndpoint:", "[NSThread isMainThread]");
    if (m_helperToolConnection) {
        return;
    }
    m_helperToolConnection = m_link.connectToListenerEndpoint(endpoint);
    watch(m_helperToolConnection, &XPCMethods::m_helperToolConnection);
    m_helperToolConnection->resume();
}

void XPCMethods::connectAndExecuteCommandBlock(ConnectedBlock block)
{
    m_helperToolConnection.reset();
    connectToXPCService();
    const FirstAnswer answer;
    const auto use = m_scheduler.replyOnMain<std::optional<QString>, QByteArray>(this,
        [this, block](const std::optional<QString> &endpoint, const QByteArray &authorization) {
            useEndpoint(endpoint, authorization, block);
        });
    const auto fail =
        m_scheduler.replyOnMain<Error>(this, [block](const Error &error) { block(error); });
    m_xpcServiceConnection->connectWithEndpointAndAuthorizationReply(
        [answer, use, keep = m_xpcServiceConnection](
            const std::optional<QString> &endpoint, const QByteArray &authorization) {
            if (!answer.taken()) {
                use(endpoint, authorization);
            }
        },
        [answer, fail, keep = m_xpcServiceConnection](const Error &error) {
            if (!answer.taken()) {
                fail(error);
            }
        });
}

void XPCMethods::useEndpoint(const std::optional<QString> &endpoint,
    const QByteArray &authorization, const ConnectedBlock &block)
{
    if (!endpoint) {
        block(Error{posixErrorDomain, noEndpointCode, {}});
        return;
    }
    connectToHelperToolEndpoint(*endpoint);
    m_authorization = authorization;
    block(std::nullopt);
}

void XPCMethods::installHelperToolwithReply(SuccessReply reply)
{
    connectToXPCService();
    const YesNoReply answer{m_scheduler, std::move(reply), m_xpcServiceConnection};
    m_xpcServiceConnection->installHelperToolWithReply(
        answer.reply(installedText), answer.errorHandler());
}

void XPCMethods::getVersionOfHelperToolwithReply(TextReply reply)
{
    connectAndExecuteCommandBlock([this, reply](const std::optional<Error> &error) {
        if (error) {
            logError(error);
            reply(errorText(*error));
            return;
        }
        const FirstAnswer answer;
        m_helperToolConnection->getVersionWithReply(
            [answer, reply, keep = m_helperToolConnection](const QString &version) {
                if (!answer.taken()) {
                    reply(version);
                }
            },
            [&scheduler = m_scheduler, answer, reply, keep = m_helperToolConnection](
                const Error &failure) {
                if (!answer.taken()) {
                    logErrorOnMain(scheduler, failure);
                    reply(errorText(failure));
                }
            });
    });
}

void XPCMethods::changeAddressOfDeviceToAddressDeviceIsWiFiWithReply(const QString &device,
    const QString &address, bool deviceIsWiFi, SuccessReply reply,
    const std::function<void()> &asked)
{
    connectAndExecuteCommandBlock([this, device, address, deviceIsWiFi, reply, asked](
                                      const std::optional<Error> &error) {
        if (error) {
            logError(error);
            reply(false);
            return;
        }
        if (asked) {
            asked();
        }
        const YesNoReply answer{m_scheduler, reply, m_helperToolConnection};
        m_helperToolConnection->changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(
            device, address, deviceIsWiFi, m_authorization, answer.reply(), answer.errorHandler());
    });
}

void XPCMethods::uninstallHelperToolwithReply(SuccessReply reply)
{
    connectAndExecuteCommandBlock([this, reply](const std::optional<Error> &error) {
        if (error) {
            logError(error);
            reply(false);
            return;
        }
        const YesNoReply answer{m_scheduler, reply, m_helperToolConnection};
        m_helperToolConnection->uninstallWithAuthorizationAndReply(m_authorization,
            answer.reply(uninstalledText), answer.errorHandlerOfRemoval(uninstalledText));
    });
}

void XPCMethods::updateHelperInstalledStatus()
{
    if (!m_scheduler.isMainThread()) {
        m_scheduler.onMain(this, [this] { updateHelperInstalledStatus(); });
        return;
    }
    getVersionOfHelperToolwithReply(m_scheduler.replyOnMain<QString>(
        this, [this](const QString &version) { announceStatus(version == helperToolVersion()); }));
}

void XPCMethods::announceStatus(bool installed)
{
    m_isHelperInstalled = installed;
    Q_EMIT helperStatusRead(installed);
    m_notifications.post(notifications::helperStatusChanged, this);
}

void XPCMethods::installHelper()
{
    Q_EMIT helperInstallationStarted();
    installHelperToolwithReply(m_scheduler.replyOnMain<bool>(this, [this](bool success) {
        if (success) {
            updateHelperInstalledStatus();
            Q_EMIT helperInstalledFromMainWindow();
        }
        Q_EMIT helperInstallationEnded();
    }));
}

void XPCMethods::logText(const QString &text)
{
    QUILLON_REQUIRE(!text.isNull(), "logText:", "text != nil");
    logOnMain(m_scheduler, text);
}

void XPCMethods::logWithFormat(const QString &format, const QStringList &values)
{
    QUILLON_REQUIRE(!format.isNull(), "logWithFormat:", "format != nil");
    logText(filled(format, values));
}

void XPCMethods::logError(const std::optional<Error> &error)
{
    QUILLON_REQUIRE(error.has_value(), "logError:", "error != nil");
    logWithFormat(errorLogFormat, {error->domain, QString::number(error->code)});
}

} // namespace quillon
