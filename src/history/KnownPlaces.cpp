// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/KnownPlaces.h"

#include "history/HistorySearch.h"
#include "platform/Scheduler.h"
#include "store/model/QuillonModel.h"

#include <utility>

namespace quillon {

namespace {

QSet<QString> inLowerCase(const QStringList &texts)
{
    QSet<QString> lower;
    for (const QString &text : texts) {
        lower << text.toLower();
    }
    return lower;
}

/// Whether it was not known until now.
bool learn(QSet<QString> &known, const QString &text)
{
    const QString lower = text.toLower();
    if (lower.isEmpty() || known.contains(lower)) {
        return false;
    }
    known << lower;
    return true;
}

} // namespace

KnownPlaces::KnownPlaces(RecordStore &records, Scheduler &scheduler)
    : m_scheduler(scheduler)
    , m_listing(records, scheduler)
{
    connect(&m_listing, &RecordListing::failed, this, [this] { end(m_search, std::nullopt); });
    connect(&m_listing, &RecordListing::progressed, this, &KnownPlaces::readOn);
}

KnownPlaces::~KnownPlaces()
{
    if (m_search) {
        m_search->isCancelled = true;
    }
}

void KnownPlaces::search(const QStringList &savedAddresses, const QStringList &savedNetworks)
{
    if (isSearching()) {
        return;
    }
    m_search = std::make_shared<Search>();
    m_search->addresses = inLowerCase(savedAddresses);
    m_search->networks = inLowerCase(savedNetworks);
    m_listing.show(historyRequest(std::nullopt, HistoryColumn::Date, false));
}

void KnownPlaces::readOn()
{
    if (!m_search || !m_listing.isComplete()) {
        return;
    }
    const RecordSnapshot records = m_listing.snapshot();
    // What changes from now on is not waited for.
    m_listing.clear();
    const auto ended = m_scheduler.replyOnMain<std::shared_ptr<Search>, std::optional<Found>>(
        this, [this](const auto &search, const auto &result) { end(search, result); });
    m_scheduler.inBackground(
        [records, search = m_search, ended] { ended(search, look(records, *search)); });
}

std::optional<KnownPlaces::Found> KnownPlaces::look(const RecordSnapshot &records, Search &search)
{
    const Entity &entity = records.entity();
    const qsizetype address = entity.indexOf(model::connection::address);
    const qsizetype bssid = entity.indexOf(model::connection::bssid);
    const qsizetype ssid = entity.indexOf(model::connection::ssid);
    Found found;
    const auto hasRoom = [&found] {
        const bool has = found.addresses.size() + found.networks.size() < most;
        found.hasMore = found.hasMore || !has;
        return has;
    };
    const auto error = records.read([&](const QVariantList &values) {
        const QString newAddress = values.value(address).toString();
        if (learn(search.addresses, newAddress) && hasRoom()) {
            found.addresses << SavedEntry::ofAddress(newAddress);
        }
        const QString newBssid = values.value(bssid).toString();
        if (learn(search.networks, newBssid) && hasRoom()) {
            found.networks << SavedEntry::ofNetwork(newBssid, values.value(ssid).toString());
        }
        return !found.hasMore && !search.isCancelled;
    });
    return error ? std::nullopt : std::optional(found);
}

void KnownPlaces::end(const std::shared_ptr<Search> &search, const std::optional<Found> &result)
{
    if (!search || search != m_search) {
        return;
    }
    m_search.reset();
    m_listing.clear();
    if (result) {
        Q_EMIT found(*result);
    } else {
        Q_EMIT failed();
    }
}

} // namespace quillon
