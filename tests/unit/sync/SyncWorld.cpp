// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SyncWorld.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using Fault = FakeCloudStorage::Fault;
using Look = SyncRound::Look;

namespace {

constexpr qint64 day = 86'400'000;

/// `small` joined into `large` changes nothing.
bool isWithin(const SyncChanges &small, const SyncChanges &large)
{
    SyncChanges joined = large;
    join(joined, small);
    return joined == large;
}

SyncChanges stateOf(const MemoryReplicaStorage &storage)
{
    return {storage.content.records, storage.content.settings};
}

} // namespace

struct SyncWorld::Computer : SyncedComputer
{
    using SyncedComputer::SyncedComputer;

    bool isRunning() const { return running && !outcome; }

    bool mustList = true;
    int offlineFor = 0; ///< steps
    MemoryReplicaStorage::Content backup;
};

SyncWorld::SyncWorld(quint64 seed)
    : m_random(seed)
    , m_seed(seed)
    , m_key(AccountKey::random(m_random).value())
{
    m_account.put(u"key"_s, "the wrapped key");
    m_account.honorsPreconditions = !m_random.oneIn(3);
    m_account.tellsRevisions = !m_random.oneIn(3);
    m_oneFaultIn = 8 << m_random.below(4);
    m_isSetBackWorld = m_random.oneIn(3);
    // A computer that was set back sees by what is there that its numbers were used.
    m_mayBeStale = !m_isSetBackWorld;
    m_serverBackup = m_account.files;
    const int computers = 2 + m_random.below(4);
    for (int i = 0; i < computers; ++i) {
        m_computers.push_back(
            std::make_unique<Computer>(m_account, m_key, seed * 100 + quint64(i)));
        Computer &computer = *m_computers.back();
        computer.now = 800 * day + m_random.below(800) * day - 400 * day;
        computer.limits = {2 + m_random.below(8), qint64{1} << (9 + m_random.below(5)),
            200 + m_random.below(400), 1 + m_random.below(4)};
    }
}

SyncWorld::~SyncWorld() = default;

void SyncWorld::step()
{
    if (m_random.oneIn(30)) {
        changeServer();
        return;
    }
    Computer &computer = *m_computers[std::size_t(m_random.below(int(m_computers.size())))];
    computer.now += m_random.below(1000);
    computer.storage.failNext = m_random.oneIn(40);
    happen(computer);
    computer.storage.failNext = false;
}

void SyncWorld::happen(Computer &computer)
{
    if (computer.offlineFor > 0) {
        --computer.offlineFor;
        if (m_random.oneIn(4)) {
            computer.now += m_random.below(1000) * 1000;
            edit(computer);
        }
        return;
    }
    switch (m_random.below(12)) {
    case 0:
    case 1:
        edit(computer);
        break;
    case 2:
        if (m_random.oneIn(6)) {
            restart(computer);
        } else if (m_isSetBackWorld && m_random.oneIn(12)) {
            setBack(computer);
        } else if (m_random.oneIn(10)) {
            computer.offlineFor = 30 + m_random.below(100);
            count(u"computers offline for long"_s);
        }
        break;
    default:
        if (computer.isRunning()) {
            answer(computer);
        } else {
            beginRound(computer);
        }
    }
}

void SyncWorld::edit(Computer &computer)
{
    QList<LocalEdit> edits;
    for (int i = 1 + m_random.below(3); i > 0; --i) {
        edits.append(randomEdit(computer));
    }
    const auto before = computer.storage.content.pending.size();
    if (!computer.replica.edit(edits, computer.now)) {
        count(u"edits that could not be saved"_s);
        return;
    }
    // Rules aside, the program that edits shows what it did itself.
    for (const LocalEdit &edit : std::as_const(edits)) {
        if (edit.kind != LocalEdit::Kind::Set && edit.record.entity != model::Rule) {
            const RecordState state = computer.storage.record(edit.record);
            computer.storage.showRecord(
                edit.record, state.isPresent() ? std::optional(state.values()) : std::nullopt);
        }
    }
    for (auto i = before; i < computer.storage.content.pending.size(); ++i) {
        join(m_kept, computer.storage.content.pending[i]);
    }
    count(u"edits"_s);
}

LocalEdit SyncWorld::randomEdit(const Computer &computer)
{
    if (m_random.oneIn(5)) {
        return {LocalEdit::Kind::Set, {}, {},
            {u"savedNetworks"_s, QString::number(m_random.below(5))}, randomValue(m_random)};
    }
    if (m_random.oneIn(3)) {
        const RecordId id{model::Connection, ruleId(m_random.below(20)).id};
        if (computer.storage.record(id).isPresent()) {
            return {LocalEdit::Kind::Delete, id, {}, {}, {}};
        }
        return {LocalEdit::Kind::Insert, id,
            {{u"address"_s, randomValue(m_random)}, {u"notes"_s, randomValue(m_random)}}, {}, {}};
    }
    const RecordId id = ruleId(m_random.below(8));
    const bool isThere = computer.storage.record(id).isPresent();
    if (isThere && m_random.oneIn(5)) {
        return {LocalEdit::Kind::Delete, id, {}, {}, {}};
    }
    const RecordValues all{{u"name"_s, u"rule %1"_s.arg(m_random.below(3))},
        {u"enabled"_s, m_random.oneIn(2)}, {u"device"_s, u"wlan0"_s},
        {u"network"_s, QString::number(m_random.below(2))}};
    if (!isThere) {
        return {LocalEdit::Kind::Insert, id, all, {}, {}};
    }
    const QString attribute = all.keys().at(m_random.below(int(all.size())));
    return {LocalEdit::Kind::Change, id, {{attribute, all[attribute]}}, {}, {}};
}

void SyncWorld::beginRound(Computer &computer)
{
    if (computer.outcome) {
        computer.mustList = !computer.outcome->isWell() || computer.outcome->wantsListing;
        if (computer.outcome->wroteSnapshot) {
            count(u"snapshots"_s);
        }
        count(computer.outcome->isWell() ? u"rounds that went well"_s : u"rounds with an error"_s);
    }
    computer.begin(computer.mustList || m_random.oneIn(6) ? Look::Listing : Look::Head);
}

void SyncWorld::answer(Computer &computer)
{
    const QStringList waiting = computer.cloud.waiting();
    const int index = m_random.below(int(waiting.size()));
    Fault fault = Fault::None;
    if (m_random.oneIn(m_oneFaultIn)) {
        static constexpr std::array faults{
            Fault::Lost, Fault::AnswerLost, Fault::Cut, Fault::Twice, Fault::Stale, Fault::Refused};
        fault = faults[std::size_t(m_random.below(int(faults.size())))];
        if (fault == Fault::Stale && !m_mayBeStale) {
            fault = Fault::Lost;
        }
        static constexpr std::array refusals{CloudProblem::Failed, CloudProblem::NotAllowed,
            CloudProblem::Full, CloudProblem::WrongPassword, CloudProblem::NotAnAccount};
        computer.cloud.refusal.problem =
            refusals[std::size_t(m_random.below(int(refusals.size())))];
        count(u"faults of requests"_s);
    }
    count(u"requests"_s);
    computer.cloud.answer(index, fault);
}

void SyncWorld::restart(Computer &computer)
{
    count(computer.isRunning() ? u"kills within a round"_s : u"restarts"_s);
    computer.kill(m_random.oneIn(2));
    computer.outcome.reset();
    computer.mustList = true;
    if (m_random.oneIn(3)) {
        computer.backup = computer.storage.content;
    }
}

void SyncWorld::setBack(Computer &computer)
{
    restart(computer);
    // Nothing is on its way for as long as it takes to restore a backup.
    while (!m_account.late.isEmpty()) {
        m_account.late.takeFirst()();
    }
    computer.storage.content = computer.backup;
    count(u"computers set back"_s);
}

void SyncWorld::changeServer()
{
    switch (m_random.below(8)) {
    case 0:
        m_serverBackup = m_account.files;
        break;
    case 1:
        // With a computer set back as well, nobody might know which numbers were used.
        if (!m_isSetBackWorld && m_random.oneIn(3)) {
            restoreServer();
        }
        break;
    case 2:
        if (m_random.oneIn(4)) {
            spoil();
        }
        break;
    default:
        if (!m_account.late.isEmpty()) {
            m_account.late.takeAt(m_random.below(int(m_account.late.size())))();
            count(u"requests that came late"_s);
        }
    }
}

void SyncWorld::restoreServer()
{
    m_account.files = m_serverBackup;
    for (auto it = m_foreign.begin(); it != m_foreign.end(); ++it) {
        m_account.put(it.key(), *it);
    }
    count(u"servers restored"_s);
}

void SyncWorld::spoil()
{
    if (m_random.oneIn(2)) {
        static const QStringList names{u"notes.txt"_s, u"00000000000000ff-000000000001.change"_s,
            u"00000000000000fe.snapshot"_s, u"00000000000000fd-000000000000.part"_s};
        const QString name = names[m_random.below(int(names.size()))];
        m_foreign[name] = m_random.bytes(1 + m_random.below(80));
        m_account.put(name, m_foreign[name]);
        count(u"foreign files"_s);
        return;
    }
    const QString name = m_account.files.keys().at(m_random.below(int(m_account.files.size())));
    if (name == u"key" || m_foreign.contains(name)) {
        return;
    }
    QByteArray bytes = m_account.files[name].bytes;
    if (m_random.oneIn(2)) {
        bytes.truncate(m_random.below(int(bytes.size()) + 1));
    } else if (!bytes.isEmpty()) {
        bytes[m_random.below(int(bytes.size()))] ^= char(1 << m_random.below(8));
    }
    m_account.put(name, bytes);
    m_isSpoiled |= name != u"head";
    count(u"files damaged"_s);
}

void SyncWorld::comeHome()
{
    while (!m_account.late.isEmpty()) {
        m_account.late.takeFirst()();
    }
    for (const auto &computer : m_computers) {
        computer->kill();
        computer->offlineFor = 0;
    }
}

bool SyncWorld::isSettled() const
{
    const Computer &first = *m_computers.front();
    return std::ranges::all_of(m_computers, [&first](const auto &computer) {
        return computer->isLike(first) && !computer->replica.hasUnsent() &&
               computer->progress().lackingListings == 0;
    });
}

bool SyncWorld::runRounds(int most)
{
    for (int i = 0; i < most; ++i) {
        for (const auto &computer : m_computers) {
            computer->round(Look::Listing);
        }
        if (i >= 2 && isSettled()) {
            return true;
        }
    }
    return false;
}

SyncChanges SyncWorld::heldSomewhere() const
{
    SyncChanges held;
    for (const auto &computer : m_computers) {
        join(held, stateOf(computer->storage));
    }
    return held;
}

QStringList SyncWorld::end()
{
    comeHome();
    const SyncChanges held = heldSomewhere();
    if (m_isSpoiled) {
        // Damage that others cannot see is made good by the next snapshot.
        for (const auto &computer : m_computers) {
            edit(*computer);
            computer->limits.changeFiles = 1;
        }
    }
    const bool settled = runRounds(60);
    QStringList found = problems(held);
    if (!settled) {
        found.append(u"they do not settle"_s);
    }
    m_isSpoiled = false;
    for (const auto &computer : m_computers) {
        computer->kill();
        computer->outcome.reset();
        computer->mustList = true;
        computer->limits.changeFiles = 2 + m_random.below(8);
    }
    return found;
}

QStringList SyncWorld::problems(const SyncChanges &held)
{
    QStringList found;
    const Computer &first = *m_computers.front();
    const SyncChanges state = stateOf(first.storage);
    for (const auto &computer : m_computers) {
        if (!computer->isLike(first)) {
            found.append(u"two computers differ"_s);
        }
        if (computer->replica.hasUnsent()) {
            found.append(u"something was not sent"_s);
        }
        if (computer->cloud.mostWaiting() > computer->limits.requests) {
            found.append(u"too many requests at once"_s);
        }
    }
    if (!isWithin(held, state)) {
        found.append(u"something was lost that a computer had"_s);
    }
    if (!isWithin(state, m_kept)) {
        found.append(u"something is there that nobody wrote"_s);
    }
    if (!m_isSetBackWorld && state != m_kept) {
        found.append(u"an edit that was saved is lost"_s);
    }
    for (auto it = m_foreign.begin(); it != m_foreign.end(); ++it) {
        if (m_account.files.value(it.key()).bytes != *it) {
            found.append(u"a foreign file was touched"_s);
        }
    }
    Computer fresh(m_account, m_key, m_seed + 1'000'000);
    fresh.round();
    if (!fresh.isLike(first)) {
        found.append(u"the account alone does not tell everything"_s);
    }
    checkShown(found);
    return found;
}

void SyncWorld::checkShown(QStringList &problems) const
{
    QSet<QString> names;
    QSet<QString> places;
    const auto &shown = m_computers.front()->storage.content.shown;
    for (auto it = shown.begin(); it != shown.end(); ++it) {
        if (it.key().entity != model::Rule) {
            continue;
        }
        const SyncValue name = it->value(u"name"_s);
        const SyncValue network = it->value(u"network"_s);
        if (!std::holds_alternative<QString>(name) || !std::holds_alternative<QString>(network)) {
            problems.append(u"a rule is not whole"_s);
            continue;
        }
        if (names.contains(std::get<QString>(name))) {
            problems.append(u"two rules of one name"_s);
        }
        names.insert(std::get<QString>(name));
        if (it->value(u"enabled"_s) == SyncValue(true)) {
            if (places.contains(std::get<QString>(network))) {
                problems.append(u"two enabled rules in one place"_s);
            }
            places.insert(std::get<QString>(network));
        }
    }
}

} // namespace quillon::test
