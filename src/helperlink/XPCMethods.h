// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QByteArray>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class HelperLink;
class HelperToolConnection;
class NotificationCenter;
class Scheduler;
class XPCServiceConnection;

/// The program's side of the link to the privileged helper: authorization, connecting (program,
/// service, endpoint, helper), the helper's operations, and the log of every failure.
///
/// Operations are called on the main thread, unless they say otherwise. Replies of install,
/// version, change and uninstall may come on any thread; when this object goes meanwhile, those
/// whose call has not reached the helper do not come. A call that comes on the wrong thread is a
/// programming error and ends the program.
class XPCMethods : public QObject
{
    Q_OBJECT

public:
    using SuccessReply = std::function<void(bool success)>;
    using TextReply = std::function<void(const QString &text)>;
    using ConnectedBlock = std::function<void(const std::optional<Error> &error)>;

    XPCMethods(HelperLink &link, Scheduler &scheduler, NotificationCenter &notifications);
    ~XPCMethods() override;

    /// The version that a helper must answer exactly; any other answer is "not installed".
    static QString helperToolVersion();
    bool isHelperInstalled() const { return m_isHelperInstalled; }

    /// Called once while the application finishes launching. `windowExists` is asserted.
    void authorizeHelperTool(bool windowExists);
    void installHelperToolwithReply(SuccessReply reply);
    /// The helper's version, or an error text, which never equals a version.
    void getVersionOfHelperToolwithReply(TextReply reply);
    /// `asked` is called on the main thread when the helper could be connected to, before it is
    /// asked: without that call nothing has touched the device.
    void changeAddressOfDeviceToAddressDeviceIsWiFiWithReply(const QString &device,
        const QString &address, bool deviceIsWiFi, SuccessReply reply,
        const std::function<void()> &asked = {});
    void uninstallHelperToolwithReply(SuccessReply reply);

    /// Asks for the version and announces what it means. Any thread.
    void updateHelperInstalledStatus();
    /// The main window's install button.
    void installHelper();

    /// Makes a connection when there is none.
    void connectToXPCService();
    void connectToHelperToolEndpoint(const QString &endpoint);
    /// The connect sequence before every helper operation; `block` runs on the main thread with the
    /// error that prevented it, or none.
    void connectAndExecuteCommandBlock(ConnectedBlock block);

    /// To the system log, in a later turn of the main loop. Any thread. The text must not be null.
    void logText(const QString &text);
    void logWithFormat(const QString &format, const QStringList &values);
    void logError(const std::optional<Error> &error);

Q_SIGNALS:
    /// The helper's status was read; the follow-ups are connected in their order in
    /// app/EventWiring, and "helperStatusChanged" is posted when they are done. Main thread.
    void helperStatusRead(bool installed);
    /// The main window's install button succeeded; updateHelperInstalledStatus() has been called.
    void helperInstalledFromMainWindow();
    /// Around an installation that the main window asked for, whatever comes of it.
    void helperInstallationStarted();
    void helperInstallationEnded();

private:
    /// Clears `field` and logs when `connection` is invalidated.
    template <typename Connection>
    void watch(const std::shared_ptr<Connection> &connection,
        std::shared_ptr<Connection> XPCMethods::*field);
    void useEndpoint(const std::optional<QString> &endpoint, const QByteArray &authorization,
        const ConnectedBlock &block);
    void announceStatus(bool installed);

    HelperLink &m_link;
    Scheduler &m_scheduler;
    NotificationCenter &m_notifications;
    QByteArray m_authorization;
    std::shared_ptr<XPCServiceConnection> m_xpcServiceConnection;
    std::shared_ptr<HelperToolConnection> m_helperToolConnection;
    bool m_isHelperInstalled = false;
};

} // namespace quillon
