// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/PortalHotKeys.h"

#include "platform/linux/bus/BusCall.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>

#include <utility>

namespace quillon {

/// A hot key as the portal knows it.
struct PortalShortcut
{
    QString identifier;
    QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.identifier << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.identifier >> shortcut.properties;
    argument.endStructure();
    return argument;
}

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;

// The portal may have to be started first. What its user decides comes later, in a signal.
constexpr auto answerLimit = 25s;
constexpr uint success = 0;

/// In the form of the desktop's shortcuts specification.
QString triggerOf(const KeyCombination &keys)
{
    const auto symbol = symbolOf(keys.key);
    return (keys.control ? u"CTRL+"_s : QString()) + (keys.alt ? u"ALT+"_s : QString()) +
           (keys.shift ? u"SHIFT+"_s : QString()) + (keys.meta ? u"LOGO+"_s : QString()) +
           (symbol ? symbol->name : keys.key);
}

} // namespace

PortalHotKeys::PortalHotKeys(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    m_bus.connect(service, path, interface, u"Activated"_s, this, SLOT(activated(QDBusMessage)));
    auto *watcher =
        new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &PortalHotKeys::portalStarted);
}

PortalHotKeys::~PortalHotKeys()
{
    closeSession();
}

QDBusMessage PortalHotKeys::isOfferedQuestion()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({interface, u"version"_s});
    return question;
}

void PortalHotKeys::bind(const HotKey &hotKey, Reply reply)
{
    m_wishes[hotKey.identifier] = {hotKey, std::move(reply)};
    renewSoon();
}

void PortalHotKeys::release(const QString &identifier)
{
    if (m_wishes.remove(identifier) > 0) {
        renewSoon();
    }
}

void PortalHotKeys::portalStarted()
{
    // Its sessions ended with the one before. The start that our own first call causes is none of
    // these.
    if (!m_session.isEmpty()) {
        m_session.clear();
        renewSoon();
    }
}

// Hot keys that change together go into one session.
void PortalHotKeys::renewSoon()
{
    if (!std::exchange(m_isRenewing, true)) {
        QMetaObject::invokeMethod(this, &PortalHotKeys::renew, Qt::QueuedConnection);
    }
}

void PortalHotKeys::renew()
{
    m_isRenewing = false;
    // What is under way is not waited for any more.
    m_request.clear();
    closeSession();
    if (!m_wishes.isEmpty()) {
        createSession();
    }
}

void PortalHotKeys::closeSession()
{
    if (!m_session.isEmpty()) {
        m_bus.send(QDBusMessage::createMethodCall(
            service, std::exchange(m_session, QString()), sessionInterface, u"Close"_s));
    }
}

void PortalHotKeys::createSession()
{
    m_isBinding = false;
    const QString token = expectResponse();
    call(u"CreateSession"_s,
        {QVariantMap{{u"handle_token"_s, token}, {u"session_handle_token"_s, token}}});
}

void PortalHotKeys::bindAll()
{
    m_isBinding = true;
    QList<PortalShortcut> shortcuts;
    for (const Wish &wish : std::as_const(m_wishes)) {
        shortcuts.append(
            {wish.hotKey.identifier, {{u"description"_s, wish.hotKey.description},
                                         {u"preferred_trigger"_s, triggerOf(wish.hotKey.keys)}}});
    }
    const QString token = expectResponse();
    call(u"BindShortcuts"_s,
        {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts), QString(),
            QVariantMap{{u"handle_token"_s, token}}});
}

/// Listens for the response before the request is made, so that none is missed; returns the token
/// of the request.
QString PortalHotKeys::expectResponse()
{
    const QString token =
        u"quillon_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(++m_tokens);
    const QString sender = m_bus.baseService().mid(1).replace(u'.', u'_');
    m_request = path + u"/request/"_s + sender + u'/' + token;
    m_bus.connect(
        service, m_request, requestInterface, u"Response"_s, this, SLOT(responded(QDBusMessage)));
    return token;
}

void PortalHotKeys::call(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    callBus(
        m_bus, this, message, answerLimit, [this, request = m_request](const QDBusMessage &answer) {
            if (request == m_request && answer.type() == QDBusMessage::ErrorMessage) {
                m_request.clear();
                answerAll(HotKeyResult::Refused);
            }
        });
}

void PortalHotKeys::responded(const QDBusMessage &response)
{
    m_bus.disconnect(service, response.path(), requestInterface, u"Response"_s, this,
        SLOT(responded(QDBusMessage)));
    if (response.path() != m_request) {
        return;
    }
    m_request.clear();
    const uint code = response.arguments().value(0).toUInt();
    const auto results = qdbus_cast<QVariantMap>(response.arguments().value(1));
    if (m_isBinding) {
        allBound(code, results);
    } else {
        sessionCreated(code, results);
    }
}

void PortalHotKeys::sessionCreated(uint code, const QVariantMap &results)
{
    // A text by its specification; some portals give the path that it is.
    const QVariant handle = results.value(u"session_handle"_s);
    m_session = handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path()
                                                     : handle.toString();
    if (code == success && !m_session.isEmpty()) {
        bindAll();
    } else {
        m_session.clear();
        answerAll(HotKeyResult::Refused);
    }
}

void PortalHotKeys::allBound(uint code, const QVariantMap &results)
{
    if (code != success) {
        closeSession();
        answerAll(HotKeyResult::Refused);
        return;
    }
    QStringList bound;
    const auto shortcuts = qdbus_cast<QList<PortalShortcut>>(results.value(u"shortcuts"_s));
    for (const PortalShortcut &shortcut : shortcuts) {
        bound.append(shortcut.identifier);
    }
    const QStringList identifiers = m_wishes.keys();
    for (const QString &identifier : identifiers) {
        answer(
            identifier, bound.contains(identifier) ? HotKeyResult::Bound : HotKeyResult::Refused);
    }
}

void PortalHotKeys::answer(const QString &identifier, HotKeyResult result)
{
    const auto wish = m_wishes.find(identifier);
    if (wish != m_wishes.end() && wish->reply) {
        const Reply reply = *std::exchange(wish->reply, std::nullopt);
        reply(result);
    }
}

void PortalHotKeys::answerAll(HotKeyResult result)
{
    const QStringList identifiers = m_wishes.keys();
    for (const QString &identifier : identifiers) {
        answer(identifier, result);
    }
}

void PortalHotKeys::activated(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.value(0).value<QDBusObjectPath>().path() != m_session) {
        return;
    }
    const auto wish = m_wishes.constFind(arguments.value(1).toString());
    if (wish != m_wishes.constEnd()) {
        const auto pressed = wish->hotKey.pressed;
        pressed();
    }
}

} // namespace quillon
