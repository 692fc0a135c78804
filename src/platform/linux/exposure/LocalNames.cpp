// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/LocalNames.h"

#include "platform/linux/exposure/BusAnswers.h"

#include <QDBusObjectPath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;

constexpr qsizetype longest = 255;
const QString resolved = u"org.freedesktop.resolve1"_s;
const QString resolvedPath = u"/org/freedesktop/resolve1"_s;

bool names(const std::optional<QString> &list, const QString &device)
{
    const auto devices = list.value_or(QString()).split(u',', Qt::SkipEmptyParts);
    for (const QString &one : devices) {
        if (one.trimmed() == device) {
            return true;
        }
    }
    return false;
}

void askAvahi(BusAnswers &bus, bool isSilent, const std::shared_ptr<LocalNames> &found)
{
    bus.isRunning([&bus, isSilent, found](bool isRunning) {
        if (!isRunning || isSilent) {
            found->avahi.isTold = Answer::No;
            return;
        }
        bus.ask(u"/"_s, u"org.freedesktop.Avahi.Server"_s, u"GetHostNameFqdn"_s, {},
            [found](const QDBusMessage &answer) {
                found->avahi.isTold = Answer::Yes;
                found->avahi.name = answer.arguments().value(0).toString().left(longest);
            });
    });
}

/// "yes", "no", "resolve": the last asks others, and tells nothing.
Answer isTold(const QVariantMap &properties, const QString &what)
{
    const QString word = properties.value(what).toString();
    return word.isEmpty() ? Answer::Unknown : word == "yes"_L1 ? Answer::Yes : Answer::No;
}

/// Both must be on.
Answer isToldBy(Answer computer, Answer link)
{
    if (computer == Answer::No || link == Answer::No) {
        return Answer::No;
    }
    return computer == Answer::Yes ? link : Answer::Unknown;
}

void takeLink(LocalNames &found, const QVariantMap &computer, const QVariantMap &link)
{
    const QString mdns = u"MulticastDNS"_s;
    const QString llmnr = u"LLMNR"_s;
    found.resolvedMdns.isTold = isToldBy(isTold(computer, mdns), isTold(link, mdns));
    found.resolvedLlmnr.isTold = isToldBy(isTold(computer, llmnr), isTold(link, llmnr));
    const QString name = computer.value(u"LLMNRHostname"_s).toString().left(longest);
    found.resolvedMdns.name = name;
    found.resolvedLlmnr.name = name;
}

void askResolved(BusAnswers &bus, int index, const std::shared_ptr<LocalNames> &found)
{
    const auto onComputer = [&bus, index, found](const QVariantMap &computer) {
        takeLink(*found, computer, {});
        const auto onLink = [&bus, computer, found](const QDBusMessage &answer) {
            const QString link = answer.arguments().value(0).value<QDBusObjectPath>().path();
            bus.askProperties(
                link, resolved + u".Link"_s, [computer, found](const QVariantMap &properties) {
                    takeLink(*found, computer, properties);
                });
        };
        bus.ask(resolvedPath, resolved + u".Manager"_s, u"GetLink"_s, {index}, onLink);
    };
    bus.isRunning([&bus, onComputer, found](bool isRunning) {
        if (!isRunning) {
            found->resolvedMdns.isTold = Answer::No;
            found->resolvedLlmnr.isTold = Answer::No;
            return;
        }
        bus.askProperties(resolvedPath, resolved + u".Manager"_s, onComputer);
    });
}

} // namespace

bool isSilentOn(const QString &device, const IniText &avahi)
{
    const auto allowed = avahi.value(u"server"_s, u"allow-interfaces"_s);
    return (allowed && !names(allowed, device)) ||
           names(avahi.value(u"server"_s, u"deny-interfaces"_s), device) ||
           avahi.truth(u"publish"_s, u"disable-publishing"_s).value_or(false) ||
           !avahi.truth(u"publish"_s, u"publish-addresses"_s).value_or(true);
}

void readLocalNames(const QDBusConnection &bus, const QString &device, int index,
    const IniText &avahi, QObject *context,
    const std::function<void(const LocalNames &names)> &reply)
{
    const auto found = std::make_shared<LocalNames>();
    const auto waiting = std::make_shared<int>(2);
    const auto done = [found, waiting, reply] {
        if (--*waiting == 0) {
            reply(*found);
        }
    };
    const auto ofAvahi =
        std::make_shared<BusAnswers>(bus, u"org.freedesktop.Avahi"_s, context, done);
    askAvahi(*ofAvahi, isSilentOn(device, avahi), found);
    const auto ofResolved = std::make_shared<BusAnswers>(bus, resolved, context, done);
    askResolved(*ofResolved, index, found);
}

} // namespace quillon
