// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/Compression.h"

#include <algorithm>
#include <zlib.h>

namespace quillon {

namespace {

/// What most files hold, the most frequent last. Part of version 1 of the format: never changed.
constexpr char dictionary[] =
    "SUEnableAutomaticChecksSUFeedURLSUAutomaticallyUpdateSUScheduledCheckIntervallowerCaseHEX"
    "shouldUpdateExternalIPdefaultTimerMinutestimerEnabledtimerMinutesshowKeyEnabled"
    "randomKeyEnabledupdateKeyEnabledshowKeyCombohideOnLaunchdisplayNotificationsloginStart"
    "showInMenuhideDocksavedNetworkssavedAddresses"
    "An Unknown NetworkAny NetworkRandom AddressDefaultTimerBridgeThunderbolt EthernetEthernet"
    "dRuledactivefactionfdevicegaddresslchangeActiongenabledgisLogindnamegnetworkdssid"
    "kssidDefineditimerMinsfvendor"
    "jConnectionebssidddategdeviceiinterfacegaddressenotesdssidbssid"
    "en0en1eth0enp0s31f6enp3s0wlp2s0wlp0s20f3wlan0eWi-Fi";

constexpr int windowBits = -15; ///< Deflate without a header around it
constexpr uInt stepSize = 64 * 1024;

const Bytef *bytesOf(const char *bytes)
{
    return reinterpret_cast<const Bytef *>(bytes);
}

Bytef *bytesOf(QByteArray &bytes)
{
    return reinterpret_cast<Bytef *>(bytes.data());
}

class Inflation
{
public:
    explicit Inflation(const QByteArray &bytes)
    {
        m_stream.next_in = const_cast<Bytef *>(bytesOf(bytes.constData()));
        m_stream.avail_in = static_cast<uInt>(bytes.size());
        m_ready = inflateInit2(&m_stream, windowBits) == Z_OK;
        m_ready = m_ready && inflateSetDictionary(
                                 &m_stream, bytesOf(dictionary), sizeof(dictionary) - 1) == Z_OK;
    }
    ~Inflation() { inflateEnd(&m_stream); }
    Inflation(const Inflation &) = delete;
    Inflation &operator=(const Inflation &) = delete;

    bool isReady() const { return m_ready; }
    bool isWhole() const { return m_status == Z_STREAM_END && m_stream.avail_in == 0; }
    /// Whether there is more to come.
    bool step(QByteArray &out, qsizetype room)
    {
        const uInt size = static_cast<uInt>(std::min<qsizetype>(stepSize, room));
        const qsizetype before = out.size();
        out.resize(before + size);
        m_stream.next_out = bytesOf(out) + before;
        m_stream.avail_out = size;
        m_status = inflate(&m_stream, Z_NO_FLUSH);
        out.resize(before + size - m_stream.avail_out);
        return m_status == Z_OK;
    }

private:
    z_stream m_stream = {};
    int m_status = Z_OK;
    bool m_ready = false;
};

} // namespace

QByteArray compressed(const QByteArray &bytes)
{
    z_stream stream = {};
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, windowBits, 9, Z_DEFAULT_STRATEGY) !=
        Z_OK) {
        return {};
    }
    deflateSetDictionary(&stream, bytesOf(dictionary), sizeof(dictionary) - 1);
    QByteArray out(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(bytes.size()))),
        Qt::Uninitialized);
    stream.next_in = const_cast<Bytef *>(bytesOf(bytes.constData()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = bytesOf(out);
    stream.avail_out = static_cast<uInt>(out.size());
    const bool whole = deflate(&stream, Z_FINISH) == Z_STREAM_END;
    out.resize(whole ? out.size() - static_cast<qsizetype>(stream.avail_out) : 0);
    deflateEnd(&stream);
    return out;
}

std::optional<QByteArray> decompressed(const QByteArray &bytes, qsizetype limit)
{
    Inflation inflation(bytes);
    QByteArray out;
    if (!inflation.isReady()) {
        return std::nullopt;
    }
    // One byte more than allowed is room enough to notice that there are too many.
    while (out.size() <= limit && inflation.step(out, limit + 1 - out.size())) {
    }
    return inflation.isWhole() && out.size() <= limit ? std::optional(out) : std::nullopt;
}

} // namespace quillon
