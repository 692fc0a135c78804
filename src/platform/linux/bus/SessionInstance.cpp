// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/SessionInstance.h"

#include "base/Log.h"
#include "contract/Names.h"
#include "platform/linux/bus/BusCall.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QGuiApplication>
#include <QVariantMap>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>
#include <xcb/xcb.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto activationLimit = 10s;

const QString applicationPath = u"/com/orvandel/Quillon4"_s;

const QString activationToken = u"activation-token"_s;
const QString startupId = u"desktop-startup-id"_s;

/// What the process was started with. Qt takes the startup id of X11 out of the environment before
/// anybody else sees it; the kernel keeps the environment of the start.
QString givenAtStart(const QByteArray &name)
{
    if (const QString value = qEnvironmentVariable(name.constData()); !value.isEmpty()) {
        return value;
    }
    QFile start(u"/proc/self/environ"_s);
    if (start.open(QIODevice::ReadOnly)) {
        const auto variables = start.readAll().split('\0');
        for (const QByteArray &variable : variables) {
            if (variable.startsWith(name + '=')) {
                return QString::fromLocal8Bit(variable.mid(name.size() + 1));
            }
        }
    }
    return {};
}

// What the desktop gave this start so that the other process may take the focus.
QVariantMap platformData()
{
    QVariantMap data;
    if (const QString token = givenAtStart("XDG_ACTIVATION_TOKEN"); !token.isEmpty()) {
        data.insert(activationToken, token);
    }
    if (const QString id = givenAtStart("DESKTOP_STARTUP_ID"); !id.isEmpty()) {
        data.insert(startupId, id);
    }
    return data;
}

/// Where Qt's Wayland plug-in looks when a window asks to be activated. A token is valid for one
/// activation: without a new one, the old one is removed.
void offerToWindows(const QString &token)
{
    constexpr const char *variable = "XDG_ACTIVATION_TOKEN";
    if (token.isEmpty()) {
        qunsetenv(variable);
    } else {
        qputenv(variable, token.toLocal8Bit());
    }
}

/// A window manager lets a window to the front that names the moment of the user's click; Qt knows
/// only of clicks on its own windows. A startup id ends in that moment, in the server's time.
void raiseUnderX11(const QString &id)
{
    auto *gui = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    const qsizetype mark = id.lastIndexOf("_TIME"_L1);
    bool known = false;
    const uint time = mark < 0 ? 0 : id.mid(mark + 5).toUInt(&known);
    if (gui == nullptr || QGuiApplication::platformName() != "xcb"_L1 || !known) {
        return;
    }
    xcb_connection_t *x = gui->nativeInterface<QNativeInterface::QX11Application>()->connection();
    constexpr std::string_view name = "_NET_ACTIVE_WINDOW";
    const auto cookie = xcb_intern_atom(x, 0, name.size(), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
        xcb_intern_atom_reply(x, cookie, nullptr), &std::free);
    const auto windows = QGuiApplication::topLevelWindows();
    for (const QWindow *window : windows) {
        if (atom == nullptr || !window->isVisible() || window->type() != Qt::Window) {
            continue;
        }
        constexpr uint32_t sourceIsApplication = 1;
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = static_cast<xcb_window_t>(window->winId());
        message.type = atom->atom;
        message.data.data32[0] = sourceIsApplication;
        message.data.data32[1] = time;
        xcb_send_event(x, 0, xcb_setup_roots_iterator(xcb_get_setup(x)).data->root,
            XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
            reinterpret_cast<const char *>(&message));
    }
    xcb_flush(x);
}

} // namespace

/// The bus side of SessionInstance. The program opens no files and has no actions, so each of the
/// three operations asks for the window.
class ApplicationAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(SessionInstance *instance)
        : QDBusAbstractAdaptor(instance)
        , m_instance(instance)
    {
    }

public Q_SLOTS:
    void Activate(const QVariantMap &data) { activate(data); }
    void Open(const QStringList &, const QVariantMap &data) { activate(data); }
    void ActivateAction(const QString &, const QVariantList &, const QVariantMap &data)
    {
        activate(data);
    }

private:
    void activate(const QVariantMap &data)
    {
        const QString id = data.value(startupId).toString();
        const QString token = data.value(activationToken, id).toString();
        offerToWindows(token);
        Q_EMIT m_instance->activated(token);
        raiseUnderX11(id);
    }

    SessionInstance *m_instance;
};

SessionInstance::SessionInstance(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    new ApplicationAdaptor(this);
}

SessionInstance::~SessionInstance() = default;

SessionInstance::Claim SessionInstance::claim()
{
    if (!m_bus.isConnected()) {
        qCWarning(logPlatform, "No session bus: a second start will not find this one");
        return Claim::NoSession;
    }
    // The object first: whoever sees the name may call at once.
    m_bus.registerObject(applicationPath, this, QDBusConnection::ExportAdaptors);
    const auto answer = m_bus.interface()->registerService(QLatin1String(contract::applicationName),
        QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    if (!answer.isValid()) {
        qCWarning(logPlatform, "The session bus gave no name: %ls",
            qUtf16Printable(answer.error().message()));
        m_bus.unregisterObject(applicationPath);
        return Claim::NoSession;
    }
    if (answer.value() == QDBusConnectionInterface::ServiceRegistered) {
        return Claim::Owned;
    }
    m_bus.unregisterObject(applicationPath);
    return Claim::AlreadyRunning;
}

void SessionInstance::activateOther(std::function<void(bool)> done)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QLatin1String(contract::applicationName),
        applicationPath, u"org.freedesktop.Application"_s, u"Activate"_s);
    call << platformData();
    call.setAutoStartService(false);
    callBus(
        m_bus, this, call, activationLimit, [done = std::move(done)](const QDBusMessage &reply) {
            done(reply.type() == QDBusMessage::ReplyMessage);
        });
}

} // namespace quillon

#include "SessionInstance.moc"
