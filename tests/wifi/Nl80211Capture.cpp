// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "wifi/Nl80211Capture.h"

#include "netlink/NetlinkAnswer.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace quillon::test {

namespace {

using Table = Nl80211Request::Table;

constexpr std::pair<Table, const char *> tableNames[] = {
    {Table::Interfaces, "interfaces"},
    {Table::Networks, "networks"},
    {Table::Stations, "stations"},
    {Table::Noises, "noises"},
    {Table::RegulatoryDomain, "regulatory-domain"},
};

std::optional<Nl80211Request> requestOf(const QByteArray &table, const QByteArray &index)
{
    bool isNumber = false;
    const quint32 number = index.toUInt(&isNumber);
    for (const auto &[value, name] : tableNames) {
        if (table == name && isNumber) {
            return Nl80211Request{value, number};
        }
    }
    return std::nullopt;
}

QByteArray requestText(const Nl80211Request &request)
{
    const auto *const row =
        std::ranges::find(tableNames, request.table, &std::pair<Table, const char *>::first);
    return QByteArray("ask ") + row->second + ' ' + QByteArray::number(request.index) + '\n';
}

bool isHexadecimal(const QByteArray &digits)
{
    return digits.size() % 2 == 0 && std::ranges::all_of(digits, [](char digit) {
        return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f');
    });
}

ByteSpan bytesOf(const QByteArray &array)
{
    return std::as_bytes(std::span(array.constData(), static_cast<std::size_t>(array.size())));
}

} // namespace

Nl80211Capture::Nl80211Capture(quint16 family)
    : m_family(family)
{
}

std::optional<Nl80211Capture> Nl80211Capture::fromText(const QByteArray &text)
{
    Nl80211Capture capture(0);
    Answer *answer = nullptr;
    const auto lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QByteArray digits = QByteArray(line).replace(' ', "");
        if (digits.isEmpty() || line.startsWith('#')) {
            continue;
        }
        if (words.first() == "family" && words.size() == 2) {
            capture.m_family = words[1].toUShort();
        } else if (words.first() == "ask" && words.size() == 3) {
            const auto request = requestOf(words[1], words[2]);
            if (!request) {
                return std::nullopt;
            }
            answer = &capture.answerTo(*request);
        } else if (line == "datagram" && answer) {
            answer->datagrams.append(QByteArray());
        } else if (answer && !answer->datagrams.isEmpty() && isHexadecimal(digits)) {
            answer->datagrams.last() += QByteArray::fromHex(digits);
        } else {
            return std::nullopt;
        }
    }
    return capture.m_family == 0 ? std::nullopt : std::optional(capture);
}

void Nl80211Capture::add(const Nl80211Request &request, ByteSpan datagram)
{
    answerTo(request).datagrams.append(QByteArray(
        reinterpret_cast<const char *>(datagram.data()), static_cast<qsizetype>(datagram.size())));
}

QByteArray Nl80211Capture::text() const
{
    constexpr qsizetype octetsALine = 32;
    QByteArray text = "family " + QByteArray::number(m_family) + '\n';
    for (const Answer &answer : m_answers) {
        text += requestText(answer.request);
        for (const QByteArray &datagram : answer.datagrams) {
            text += "datagram\n";
            for (qsizetype at = 0; at < datagram.size(); at += octetsALine) {
                text += "  " + datagram.mid(at, octetsALine).toHex() + '\n';
            }
        }
    }
    return text;
}

void Nl80211Capture::forEach(
    const std::function<void(const Nl80211Request &, ByteSpan)> &visit) const
{
    for (const Answer &answer : m_answers) {
        for (const QByteArray &datagram : answer.datagrams) {
            visit(answer.request, bytesOf(datagram));
        }
    }
}

Nl80211Messages Nl80211Capture::ask(const Nl80211Request &request)
{
    Nl80211Messages messages;
    const auto answer = std::ranges::find(m_answers, request, &Answer::request);
    if (answer == m_answers.end()) {
        messages.error = ENODATA;
        return messages;
    }
    for (const QByteArray &datagram : std::as_const(answer->datagrams)) {
        NetlinkAnswer part{.sequence = sequenceOf(bytesOf(datagram))};
        part.add(
            bytesOf(datagram), [&](const nlmsghdr &message) { messages.add(message, m_family); });
        messages.error = part.error;
    }
    return messages;
}

quint32 Nl80211Capture::sequenceOf(ByteSpan datagram)
{
    nlmsghdr first{};
    std::memcpy(&first, datagram.data(), std::min(sizeof first, datagram.size()));
    return first.nlmsg_seq;
}

Nl80211Capture::Answer &Nl80211Capture::answerTo(const Nl80211Request &request)
{
    const auto answer = std::ranges::find(m_answers, request, &Answer::request);
    if (answer != m_answers.end()) {
        return *answer;
    }
    return m_answers.emplaceBack(Answer{request, {}});
}

} // namespace quillon::test
