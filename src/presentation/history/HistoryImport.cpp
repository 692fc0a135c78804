// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryImport.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

#include <QLocale>

#include <utility>

namespace quillon {

namespace {

QString addressesText(qsizetype count)
{
    return localized("%Ln address", "%Ln addresses", count);
}

QString networksText(qsizetype count)
{
    return localized("%Ln network", "%Ln networks", count);
}

QString sentenceOf(qsizetype addresses, qsizetype networks)
{
    if (addresses == 0 && networks == 0) {
        return localized("Nothing in the history that is not saved.");
    }
    if (addresses == 0) {
        return localized("%Ln network added.", "%Ln networks added.", networks);
    }
    if (networks == 0) {
        return localized("%Ln address added.", "%Ln addresses added.", addresses);
    }
    return filled(
        localized("%@ and %@ added."), {addressesText(addresses), networksText(networks)});
}

} // namespace

HistoryImport::HistoryImport(SettingsStore &settings, KnownPlaces &places)
    : m_settings(settings)
    , m_places(places)
{
    connect(&m_places, &KnownPlaces::found, this, &HistoryImport::take);
    connect(&m_places, &KnownPlaces::failed, this, [this] {
        m_changes.clear();
        tell(localized("The history cannot be read."));
    });
}

void HistoryImport::import()
{
    if (m_state->isBusy) {
        return;
    }
    m_state.update([](State &state) { state.isBusy = true; });
    m_places.search(m_settings.getDictionary(keys::savedAddresses).keys(),
        m_settings.getDictionary(keys::savedNetworks).keys());
}

void HistoryImport::take(const KnownPlaces::Found &found)
{
    m_changes.clear();
    const qsizetype addresses = add(keys::savedAddresses, found.addresses, &SavedEntry::address);
    const qsizetype networks = add(keys::savedNetworks, found.networks, &SavedEntry::bssid);
    const QString sentence = sentenceOf(addresses, networks);
    tell(found.hasMore ? filled(localized("%@ These are the newest %@; import again for more."),
                             {sentence, QLocale().toString(KnownPlaces::most)})
                       : sentence);
}

qsizetype HistoryImport::add(
    const QString &list, const QList<SavedEntry> &entries, std::optional<QString> SavedEntry::*key)
{
    Change change{list, m_settings.get(list), m_settings.getDictionary(list), {}};
    for (const SavedEntry &entry : entries) {
        // Another program may have saved it during the search.
        if (const QString added = (entry.*key).value_or(QString()); !change.after.contains(added)) {
            change.after.insert(added, entry.toPropertyList());
            change.added << added;
        }
    }
    if (!change.added.isEmpty()) {
        write(list, change.after);
        m_changes << change;
    }
    return change.added.size();
}

void HistoryImport::undo()
{
    for (const Change &change : std::exchange(m_changes, {})) {
        const QVariantMap now = m_settings.getDictionary(change.list);
        if (now == change.after) {
            write(change.list, change.before);
            continue;
        }
        QVariantMap rest = now;
        for (const QString &key : change.added) {
            if (now.contains(key) && now.value(key) == change.after.value(key)) {
                rest.remove(key);
            }
        }
        // What holds none of it is not ours to write, a list or not.
        if (rest != now) {
            write(change.list, rest);
        }
    }
}

void HistoryImport::write(const QString &list, const QVariant &value)
{
    m_settings.set(list, value);
    m_settings.synchronize();
    if (list == keys::savedNetworks) {
        Q_EMIT networksChanged();
    }
}

void HistoryImport::tell(const QString &message)
{
    m_state.update([](State &state) { state.isBusy = false; });
    Q_EMIT ended(message);
}

} // namespace quillon
