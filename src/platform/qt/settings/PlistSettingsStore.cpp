// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/PlistSettingsStore.h"

#include "base/DurableFolder.h"
#include "base/Log.h"
#include "platform/SerialQueue.h"
#include "platform/qt/settings/FileWatch.h"
#include "platform/qt/settings/SettingsFile.h"

#include <QFileInfo>

#include <atomic>
#include <thread>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// Several changes in a row make one write.
constexpr auto writeDelay = 50ms;
// A file that may be in the middle of being written is looked at again after this time, and more
// often by somebody who waits for it.
constexpr auto secondLookDelay = 1s;
constexpr auto settlingPause = 50ms;

} // namespace

/// When the values and the file meet: soon after a change, on demand, when the file changed.
class PlistSettingsStore::Core : public std::enable_shared_from_this<Core>
{
public:
    Core(const QString &path, Scheduler &scheduler, SettingsProblem::Handler problem, Pause pause)
        : observers(scheduler)
        , values(observers)
        , m_scheduler(scheduler)
        , m_problem(std::move(problem))
        , m_pause(std::move(pause))
        , m_file(path, values, scheduler)
        , m_queue(scheduler)
    {
    }

    void load();
    bool saveNow();
    void saveSoon();
    void fileChanged();

    SettingsObservers observers;
    SettingsValues values;

private:
    using Outcome = SettingsFile::Outcome;

    void read();
    void lookAgainLater();
    void save();
    Outcome settled(Outcome (SettingsFile::*access)());
    void tell();
    template <typename Function>
    void inBackground(Function function);

    Scheduler &m_scheduler;
    const SettingsProblem::Handler m_problem;
    const Pause m_pause;
    SettingsFile m_file;
    SerialQueue m_queue; ///< a slow disk holds up one thread of the pool, not all
    std::atomic<bool> m_savePlanned = false;
    std::atomic<bool> m_readPlanned = false;
    std::atomic<bool> m_secondLookPlanned = false;
};

/// Runs it unless the store has been destroyed by then.
template <typename Function>
void PlistSettingsStore::Core::inBackground(Function function)
{
    m_queue.add([weak = weak_from_this(), function] {
        if (const auto core = weak.lock()) {
            function(*core);
        }
    });
}

/// What `access` comes to once the file has had the time to become whole. Waits until then, which
/// the file bounds.
PlistSettingsStore::Core::Outcome PlistSettingsStore::Core::settled(
    Outcome (SettingsFile::*access)())
{
    Outcome outcome = (m_file.*access)();
    while (outcome == Outcome::NotYet) {
        m_pause(settlingPause);
        outcome = (m_file.*access)();
    }
    return outcome;
}

void PlistSettingsStore::Core::load()
{
    settled(&SettingsFile::read);
    tell();
}

bool PlistSettingsStore::Core::saveNow()
{
    const Outcome outcome = settled(&SettingsFile::save);
    tell();
    return outcome == Outcome::Done;
}

void PlistSettingsStore::Core::save()
{
    if (m_file.save() == Outcome::NotYet) {
        lookAgainLater();
    }
    tell();
}

void PlistSettingsStore::Core::saveSoon()
{
    if (m_savePlanned.exchange(true)) {
        return;
    }
    m_scheduler.onMainAfter(writeDelay, [weak = weak_from_this()] {
        if (const auto core = weak.lock()) {
            core->inBackground([](Core &self) {
                // What is set from here on needs another write.
                self.m_savePlanned = false;
                self.save();
            });
        }
    });
}

void PlistSettingsStore::Core::fileChanged()
{
    if (!m_readPlanned.exchange(true)) {
        inBackground([](Core &self) {
            self.m_readPlanned = false;
            self.read();
        });
    }
}

void PlistSettingsStore::Core::read()
{
    const Outcome outcome = m_file.read();
    if (outcome == Outcome::NotYet) {
        lookAgainLater();
    }
    tell();
    if (outcome == Outcome::Lost) {
        save();
    }
}

void PlistSettingsStore::Core::lookAgainLater()
{
    if (m_secondLookPlanned.exchange(true)) {
        return;
    }
    m_scheduler.onMainAfter(secondLookDelay, [weak = weak_from_this()] {
        if (const auto core = weak.lock()) {
            core->m_secondLookPlanned = false;
            // What could not be written meanwhile is written too.
            core->inBackground([](Core &self) { self.save(); });
        }
    });
}

/// Tells the observers and the problem handler what came of it. Not under a lock: they may call
/// back.
void PlistSettingsStore::Core::tell()
{
    observers.deliver();
    for (const SettingsProblem &problem : m_file.takeProblems()) {
        m_scheduler.onMain([weak = weak_from_this(), problem] {
            const auto core = weak.lock();
            if (core && core->m_problem) {
                core->m_problem(problem);
            }
        });
    }
}

PlistSettingsStore::PlistSettingsStore(
    const QString &path, Scheduler &scheduler, SettingsProblem::Handler problem, Pause pause)
    : m_core(std::make_shared<Core>(
          path, scheduler, std::move(problem),
          pause ? std::move(pause)
                : [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }))
{
    // A folder that is there can be watched.
    makeFolder(QFileInfo(path).path());
    // Watching before reading: what is written in between is not missed.
    m_watch = std::make_unique<FileWatch>(path, [core = m_core.get()] { core->fileChanged(); });
    m_core->load();
}

PlistSettingsStore::~PlistSettingsStore()
{
    m_watch.reset();
    if (m_core->values.unsaved() && !m_core->saveNow()) {
        qCWarning(logSettings) << "The last changes of the settings are lost";
    }
}

QVariant PlistSettingsStore::get(const QString &key) const
{
    return m_core->values.get(key);
}

void PlistSettingsStore::set(const QString &key, const QVariant &value)
{
    if (value.isValid() && !isPropertyList(value)) {
        qCWarning(logSettings) << "Refused a value that is not property-list data for" << key;
        return;
    }
    // Held here, because an observer may destroy the store.
    const std::shared_ptr<Core> core = m_core;
    if (core->values.set(key, normalizedPropertyList(value))) {
        core->saveSoon();
        core->observers.deliver();
    }
}

void PlistSettingsStore::registerDefaults(const QVariantMap &defaults)
{
    const std::shared_ptr<Core> core = m_core;
    core->values.registerDefaults(defaults);
    core->observers.deliver();
}

void PlistSettingsStore::synchronize()
{
    m_core->saveSoon();
}

bool PlistSettingsStore::flush()
{
    const std::shared_ptr<Core> core = m_core;
    return core->saveNow();
}

SettingsStore::Token PlistSettingsStore::addObserver(const QString &key, Observer observer)
{
    return m_core->observers.add(key, std::move(observer));
}

void PlistSettingsStore::removeObserver(Token token)
{
    m_core->observers.remove(token);
}

} // namespace quillon
