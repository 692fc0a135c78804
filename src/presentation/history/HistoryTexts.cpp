// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryTexts.h"

#include "base/CutText.h"
#include "base/Localized.h"
#include "history/HistorySearch.h"

#include <QLocale>

namespace quillon {

QString titleOf(HistoryColumn column)
{
    switch (column) {
    case HistoryColumn::Date:
        return localized("Date");
    case HistoryColumn::Interface:
        return localized("Interface");
    case HistoryColumn::Device:
        return localized("Device");
    case HistoryColumn::Address:
        return localized("Address");
    case HistoryColumn::Network:
        return localized("Network");
    case HistoryColumn::Bssid:
        return localized("BSSID");
    case HistoryColumn::Notes:
        break;
    }
    return localized("Notes");
}

QList<HistorySearchType> historySearchTypes()
{
    using namespace model::connection;
    return {{searchAll, localized("Search All Fields")}, {device, localized("Search Devices")},
        {interface, localized("Search Interfaces")}, {address, localized("Search Addresses")},
        {ssid, localized("Search Network Names")}, {bssid, localized("Search BSSIDs")},
        {notes, localized("Search Notes")}};
}

QString shortened(const QString &text)
{
    constexpr qsizetype longest = 60;
    return cutText(text, longest);
}

QString sentenceOf(const Connection &record, const QString &address)
{
    const QString given = shortened(address);
    const QString device = shortened(record.device());
    const QString interface = shortened(record.interface());
    const QString network = shortened(record.ssid());
    if (interface.isEmpty()) {
        return filled(localized("%@ was given %@."), {device, given});
    }
    if (network.isEmpty()) {
        return filled(localized("%@ (%@) was given %@."), {interface, device, given});
    }
    return filled(localized("%@ (%@) was given %@ on %@."), {interface, device, given, network});
}

QString recordsText(qint64 count)
{
    return localized("%Ln record", "%Ln records", count);
}

QString recordsText(qint64 count, qint64 of)
{
    return filled(
        localized("%@ of %Ln record", "%@ of %Ln records", of), {QLocale().toString(count)});
}

} // namespace quillon
