// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <random>

namespace quillon::test {

/// Kills processes that save batches of records, at random moments, and looks at what is left. A
/// killed file is opened again by the next writer, which goes on from there, so that its journal is
/// recovered and killed again; or it is opened, checked and closed here.
class KillTrial
{
public:
    struct Counts
    {
        int kills = 0;
        int savesReported = 0;
        int whileOpening = 0; ///< killed before the file was open and checked
        int duringSave = 0;   ///< killed between the begin of a save and its report; of these:
        int complete = 0;     ///< the save was found in the file
        int undone = 0;       ///< nothing of the save was found
    };

    KillTrial(QString path, unsigned seed);

    /// One writer's life.
    void killOneWriter();
    /// Opens the file: everything reported is there, nothing partial, and the file is sound.
    void check();

    const Counts &counts() const { return m_counts; }
    /// Why the store failed; empty when all is well.
    const QStringList &faults() const { return m_faults; }

private:
    struct Message
    {
        enum class Kind
        {
            Found, ///< the file is open, and is whole after this batch
            Begun,
            Saved,
            Failed,
        };
        Kind kind = Kind::Failed;
        qint64 batch = 0;
    };

    [[noreturn]] static void write(const QString &path, int report);
    static void tell(int report, Message::Kind kind, qint64 batch);
    void take(const Message &message);
    void settle(qint64 found);
    int random(int below);

    QString m_path;
    std::minstd_rand m_random;
    Counts m_counts;
    QStringList m_faults;
    qint64 m_saved = 0; ///< the last batch that was reported as saved or found
    qint64 m_begun = 0; ///< the last one whose save was begun
};

} // namespace quillon::test
