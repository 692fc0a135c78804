// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Kills processes that save records, as often as wanted, and says what it found.
#include "KillTrial.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

using namespace quillon;

void report(const test::KillTrial &trial)
{
    const auto &counts = trial.counts();
    std::printf(
        "%d writers killed: %d while they opened the file, %d during a save, %d between saves\n"
        "%d saves reported, each found again with every value\n"
        "saves cut off by a kill: %d found complete, %d undone, none partial\n",
        counts.kills, counts.whileOpening, counts.duringSave,
        counts.kills - counts.whileOpening - counts.duringSave, counts.savesReported,
        counts.complete, counts.undone);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Kills processes that save records, at random "
                                     "moments, and checks what they leave behind."_s);
    parser.addHelpOption();
    const QCommandLineOption kills(u"kills"_s, u"How many processes to kill."_s, u"N"_s, u"1000"_s);
    const QCommandLineOption seed(u"seed"_s, u"Where the random moments start."_s, u"N"_s, u"1"_s);
    const QCommandLineOption folder(u"folder"_s,
        u"A folder on the disk to be used; the file in it is removed afterwards."_s, u"DIR"_s,
        QDir::tempPath());
    parser.addOptions({kills, seed, folder});
    parser.process(application);

    const QTemporaryDir place(parser.value(folder) + u"/record-kills-XXXXXX"_s);
    quillon::test::KillTrial trial(
        place.filePath(u"Quillon.sqlite"_s), parser.value(seed).toUInt());
    for (int round = parser.value(kills).toInt(); round > 0 && trial.faults().isEmpty(); --round) {
        trial.killOneWriter();
    }
    trial.check();
    if (!trial.faults().isEmpty()) {
        std::printf("FAILED after %d kills:\n%s\n", trial.counts().kills,
            qUtf8Printable(trial.faults().join(u'\n')));
        return 1;
    }
    report(trial);
    return 0;
}
