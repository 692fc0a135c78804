// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/BusOwners.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// They answer at once or hang.
constexpr auto answerLimit = 2s;

const QString iwd = u"net.connman.iwd"_s;
const QString wpaSupplicant = u"fi.w1.wpa_supplicant1"_s;
const QString networkd = u"org.freedesktop.network1"_s;

// Some of them could be started by the bus, and would then own what they did not.
QDBusMessage callTo(const QString &service, const QString &path, const QString &interface,
    const QString &method, const QVariantList &arguments)
{
    auto call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

bool isAnswer(const QDBusMessage &message)
{
    return message.type() == QDBusMessage::ReplyMessage;
}

/// "unmanaged", "pending", "initialized", "configuring", "configured", "failed", "linger".
bool isManagedState(const QString &administrativeState)
{
    return !administrativeState.isEmpty() && administrativeState != "unmanaged"_L1 &&
           administrativeState != "linger"_L1;
}

} // namespace

BusOwners::BusOwners(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

void BusOwners::find(const QString &device, bool isRadio, QObject *context, const Reply &reply)
{
    const auto askNetworkd = [this, device, context, reply] {
        hasNetworkd(device, context,
            [reply](bool isYes) { reply(isYes ? u"systemd-networkd"_s : QString()); });
    };
    if (!isRadio) {
        askNetworkd();
        return;
    }
    // Who may ask iwd for its devices is root and a group of its own. Where it runs it has them.
    isRunning(iwd, context, [this, device, context, reply, askNetworkd](bool isIwd) {
        if (isIwd) {
            reply(u"iwd"_s);
            return;
        }
        hasWpaSupplicant(device, context, [reply, askNetworkd](bool isYes) {
            if (isYes) {
                reply(u"wpa_supplicant"_s);
            } else {
                askNetworkd();
            }
        });
    });
}

void BusOwners::ask(const QDBusMessage &question, QObject *context,
    const std::function<void(const QDBusMessage &)> &reply)
{
    callBus(m_bus, context, question, answerLimit, reply);
}

void BusOwners::isRunning(const QString &service, QObject *context, const Answer &answer)
{
    ask(nameHasOwner(service), context, [answer](const QDBusMessage &message) {
        answer(isAnswer(message) && message.arguments().value(0).toBool());
    });
}

// It runs without an interface on many machines, and tells who may not ask it nothing.
void BusOwners::hasWpaSupplicant(const QString &device, QObject *context, const Answer &answer)
{
    ask(callTo(
            wpaSupplicant, u"/fi/w1/wpa_supplicant1"_s, wpaSupplicant, u"GetInterface"_s, {device}),
        context, [answer](const QDBusMessage &message) { answer(isAnswer(message)); });
}

void BusOwners::hasNetworkd(const QString &device, QObject *context, const Answer &answer)
{
    const auto onLink = [this, context, answer](const QDBusMessage &message) {
        if (!isAnswer(message)) {
            answer(false);
            return;
        }
        const QString link = message.arguments().value(1).value<QDBusObjectPath>().path();
        ask(callTo(networkd, link, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                {networkd + u".Link"_s, u"AdministrativeState"_s}),
            context, [answer](const QDBusMessage &state) {
                answer(isAnswer(state) &&
                       isManagedState(
                           state.arguments().value(0).value<QDBusVariant>().variant().toString()));
            });
    };
    ask(callTo(networkd, u"/org/freedesktop/network1"_s, networkd + u".Manager"_s,
            u"GetLinkByName"_s, {device}),
        context, onLink);
}

} // namespace quillon
