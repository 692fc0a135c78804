// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/RecordSnapshot.h"

#include <QObject>

#include <atomic>
#include <memory>

namespace quillon {

class Scheduler;
class SettingsStore;

/// The same as SavedFromHistory for more records than one turn can look at: they are read in the
/// background, and the list is written once, when all are read. Main thread.
class SavedFromMany : public QObject
{
    Q_OBJECT

public:
    enum class List
    {
        Addresses,
        Networks,
    };
    /// What there is to be saved of some records.
    struct News
    {
        bool address = false;
        bool network = false;

        bool operator==(const News &) const = default;
    };

    /// So many entries come into a list at once: everybody reads it whole.
    static constexpr qsizetype mostAdded = 10'000;

    SavedFromMany(SettingsStore &settings, Scheduler &scheduler);
    /// Cancels.
    ~SavedFromMany() override;

    /// Answered by looked(), unless something else is asked for, or nothing any more, before.
    void look(const RecordSnapshot &records);
    void stopLooking();
    /// One at a time.
    void add(List list, const RecordSnapshot &records);
    bool isAdding() const { return m_adding != nullptr; }
    /// Nothing is added.
    void cancel();

Q_SIGNALS:
    void looked(quillon::SavedFromMany::News news);
    void progressed(qsizetype done, qsizetype of);
    /// isAdding() no more. Of what there is, `hasMore` was left out.
    void ended(qsizetype added, bool hasMore);
    void failed();

private:
    struct Work;
    struct Found;

    static News newsOf(const RecordSnapshot &records, const Work &work);
    static Found found(List list, const RecordSnapshot &records, const Work &work);
    std::shared_ptr<Work> makeWork() const;
    void take(List list, const Found &found);

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    std::shared_ptr<Work> m_looking;
    std::shared_ptr<Work> m_adding;
};

} // namespace quillon
