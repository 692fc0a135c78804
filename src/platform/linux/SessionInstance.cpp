// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SessionInstance.h"

#include "base/Log.h"
#include "contract/Names.h"
#include "platform/linux/BusCall.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QVariantMap>

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr auto activationLimit = 10s;

const QString applicationPath = QStringLiteral("/com/orvandel/Quillon4");

// What the desktop gave this start so that the other process may take the focus.
QVariantMap platformData()
{
    QVariantMap data;
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty()) {
        data.insert(QStringLiteral("activation-token"), token);
    }
    if (const QString id = qEnvironmentVariable("DESKTOP_STARTUP_ID"); !id.isEmpty()) {
        data.insert(QStringLiteral("desktop-startup-id"), id);
    }
    return data;
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
    void Activate(const QVariantMap &) { Q_EMIT m_instance->activated(); }
    void Open(const QStringList &, const QVariantMap &) { Q_EMIT m_instance->activated(); }
    void ActivateAction(const QString &, const QVariantList &, const QVariantMap &)
    {
        Q_EMIT m_instance->activated();
    }

private:
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
        applicationPath, QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    call << platformData();
    call.setAutoStartService(false);
    callBus(
        m_bus, this, call, activationLimit, [done = std::move(done)](const QDBusMessage &reply) {
            done(reply.type() == QDBusMessage::ReplyMessage);
        });
}

} // namespace quillon

#include "SessionInstance.moc"
