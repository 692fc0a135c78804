// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/wifi/Nl80211Exchange.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <optional>

namespace quillon::test {

/// What a kernel answered to each request, as text that a person can read and compare:
///
///     # a remark
///     family 28                  the number that this kernel gave to nl80211
///     ask networks 3             a request: table, and index of the interface or radio
///     datagram                   one message or several, as hexadecimal octets in any number of
///       0c0000001c000200…        lines; blanks do not count
///
/// Played back, it answers the same requests by the parser that reads the kernel; a request that
/// was not recorded fails with ENODATA.
class Nl80211Capture : public Nl80211Exchange
{
public:
    explicit Nl80211Capture(quint16 family);
    /// None when the text is not of this form.
    static std::optional<Nl80211Capture> fromText(const QByteArray &text);

    quint16 family() const { return m_family; }
    void add(const Nl80211Request &request, ByteSpan datagram);
    QByteArray text() const;
    void forEach(const std::function<void(const Nl80211Request &, ByteSpan)> &visit) const;

    Nl80211Messages ask(const Nl80211Request &request) override;

    /// The number of the request that a recorded datagram answers.
    static quint32 sequenceOf(ByteSpan datagram);

private:
    struct Answer
    {
        Nl80211Request request;
        QList<QByteArray> datagrams;
    };

    Answer &answerTo(const Nl80211Request &request);

    quint16 m_family;
    QList<Answer> m_answers;
};

} // namespace quillon::test
