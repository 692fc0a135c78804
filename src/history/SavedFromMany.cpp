// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/SavedFromMany.h"

#include "base/SettingsKeys.h"
#include "networks/SavedEntry.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "store/model/QuillonModel.h"

#include <QMap>
#include <QSet>

#include <functional>

namespace quillon {

namespace {

constexpr qsizetype recordsBetweenNews = 5000;

QSet<QString> keysOf(const SettingsStore &settings, const QString &list)
{
    const QStringList keys = settings.getDictionary(list).keys();
    return {keys.begin(), keys.end()};
}

/// The texts of a record that the lists are about.
class Texts
{
public:
    Texts(const Entity &entity, const QVariantList &values)
        : m_entity(entity)
        , m_values(values)
    {
    }
    QString address() const { return text(model::connection::address); }
    QString ssid() const { return text(model::connection::ssid); }
    QString bssid() const { return text(model::connection::bssid).toLower(); }

private:
    QString text(const QString &attribute) const
    {
        return m_values.value(m_entity.indexOf(attribute)).toString();
    }

    const Entity &m_entity;
    const QVariantList &m_values;
};

} // namespace

/// What is asked of the background.
struct SavedFromMany::Work
{
    QSet<QString> addresses; ///< saved when it was asked
    QSet<QString> networks;
    std::function<void(qsizetype)> tell;
    std::atomic_bool isCancelled = false;
};

struct SavedFromMany::Found
{
    QMap<QString, SavedEntry> entries; ///< by the key in the list
    bool hasMore = false;
    bool isUnreadable = false;
};

SavedFromMany::SavedFromMany(SettingsStore &settings, Scheduler &scheduler)
    : m_settings(settings)
    , m_scheduler(scheduler)
{
}

SavedFromMany::~SavedFromMany()
{
    stopLooking();
    if (m_adding) {
        m_adding->isCancelled = true;
    }
}

std::shared_ptr<SavedFromMany::Work> SavedFromMany::makeWork() const
{
    auto work = std::make_shared<Work>();
    work->addresses = keysOf(m_settings, keys::savedAddresses);
    work->networks = keysOf(m_settings, keys::savedNetworks);
    return work;
}

// MARK: looking

void SavedFromMany::look(const RecordSnapshot &records)
{
    stopLooking();
    m_looking = makeWork();
    const auto answer = m_scheduler.replyOnMain<std::shared_ptr<Work>, News>(
        this, [this](const auto &work, const News &news) {
            if (work == m_looking) {
                m_looking.reset();
                Q_EMIT looked(news);
            }
        });
    m_scheduler.inBackground(
        [records, work = m_looking, answer] { answer(work, newsOf(records, *work)); });
}

void SavedFromMany::stopLooking()
{
    if (m_looking) {
        m_looking->isCancelled = true;
        m_looking.reset();
    }
}

SavedFromMany::News SavedFromMany::newsOf(const RecordSnapshot &records, const Work &work)
{
    News news;
    // Of records that cannot be read there is nothing to be saved.
    records.read([&](const QVariantList &values) {
        const Texts texts(records.entity(), values);
        const QString bssid = texts.bssid();
        news.address = news.address || !work.addresses.contains(texts.address());
        news.network = news.network || (!bssid.isEmpty() && !work.networks.contains(bssid));
        return !(news.address && news.network) && !work.isCancelled;
    });
    return news;
}

// MARK: adding

void SavedFromMany::add(List list, const RecordSnapshot &records)
{
    if (isAdding()) {
        return;
    }
    m_adding = makeWork();
    m_adding->tell = m_scheduler.replyOnMain<qsizetype>(
        this, [this, of = records.keys().size()](qsizetype done) { Q_EMIT progressed(done, of); });
    const auto answer = m_scheduler.replyOnMain<std::shared_ptr<Work>, Found>(
        this, [this, list](const auto &work, const Found &found) {
            if (work == m_adding) {
                take(list, found);
            }
        });
    m_scheduler.inBackground(
        [list, records, work = m_adding, answer] { answer(work, found(list, records, *work)); });
}

void SavedFromMany::cancel()
{
    if (m_adding) {
        m_adding->isCancelled = true;
        m_adding.reset();
        Q_EMIT ended(0, false);
    }
}

SavedFromMany::Found SavedFromMany::found(
    List list, const RecordSnapshot &records, const Work &work)
{
    Found found;
    qsizetype done = 0;
    const auto learn = [&](const QSet<QString> &saved, const QString &key, const auto &entryOf) {
        if (saved.contains(key) || found.entries.contains(key)) {
            return;
        }
        found.hasMore = found.entries.size() == mostAdded;
        if (!found.hasMore) {
            found.entries.insert(key, entryOf());
        }
    };
    const auto error = records.read([&](const QVariantList &values) {
        const Texts texts(records.entity(), values);
        const QString address = texts.address();
        const QString bssid = texts.bssid();
        if (list == List::Addresses) {
            learn(work.addresses, address, [&] { return SavedEntry::ofAddress(address); });
        } else {
            learn(work.networks, bssid, [&] { return SavedEntry::ofNetwork(bssid, texts.ssid()); });
        }
        if (++done % recordsBetweenNews == 0) {
            work.tell(done);
        }
        return !found.hasMore && !work.isCancelled;
    });
    found.isUnreadable = error.has_value();
    return found;
}

void SavedFromMany::take(List list, const Found &found)
{
    m_adding.reset();
    const QString &key = list == List::Addresses ? keys::savedAddresses : keys::savedNetworks;
    // Somebody may have saved some of them meanwhile.
    QVariantMap stored = m_settings.getDictionary(key);
    const qsizetype before = stored.size();
    for (auto entry = found.entries.begin(); entry != found.entries.end(); ++entry) {
        if (!stored.contains(entry.key())) {
            stored.insert(entry.key(), entry->toPropertyList());
        }
    }
    const qsizetype added = stored.size() - before;
    if (added > 0) {
        m_settings.set(key, stored);
        m_settings.synchronize();
    }
    Q_EMIT ended(added, found.hasMore);
    if (found.isUnreadable) {
        Q_EMIT failed();
    }
}

} // namespace quillon
