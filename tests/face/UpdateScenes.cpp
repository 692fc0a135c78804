// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"
#include "fakes/SignedFeed.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

void openUpdates(FaceProgram &program)
{
    openPane<PreferencesPane::Updates>(program);
}

/// As in a build that knows whom to ask; the user wants it to look.
void lookForUpdates(FaceProgram &program)
{
    program.machine.updateFeed = QUrl(u"https://updates.example/appcast.xml"_s);
    program.machine.updateKey = FeedKey().publicKey();
    program.machine.settings.set(keys::SUEnableAutomaticChecks, true);
    program.machine.settings.set(keys::SUScheduledCheckInterval, 604800);
}

/// The pane once somebody has said that.
void findList(FaceProgram &program, const QByteArray &list)
{
    FakeHttpClient::Page page;
    page.body = list;
    page.contentType = "application/xml";
    program.machine.http.serve(program.machine.updateFeed, page);
    openUpdates(program);
    program.features().updates.pane.checkNow();
}

void findVersion(FaceProgram &program)
{
    const QByteArray notes =
        "The window opens twice as fast.\n"
        "A rule can be copied, and it says in a sentence what it does.\n\n"
        "Mended:\n"
        "- The countdown of a rule that was paused went on after the computer had slept.\n"
        "- On a network with two access points of one name both were shown.\n"
        "- Names with quotation marks were cut in the history.\n"
        "- The list of vendors opened at its end.\n"
        "- With a screen at 150 percent the arrow of a popover stood beside it.\n";
    findList(program, FeedKey().sign(feedText(
                          feedItem("4.1", "https://updates.example/quillon/releases/4.1", notes))));
}

using P = FaceProgram;

} // namespace

QList<FaceScene> updateScenes()
{
    return {
        {u"updates-off"_s, nullptr, openUpdates},
        {u"updates-not-asked"_s,
            [](P &program) {
                lookForUpdates(program);
                program.machine.settings.set(keys::SUEnableAutomaticChecks, false);
            },
            openUpdates},
        {u"updates-none"_s, lookForUpdates,
            [](P &program) { findList(program, FeedKey().sign(feedText(feedItem("4.0")))); }},
        {u"updates-found"_s, lookForUpdates, findVersion},
        {u"updates-not-trusted"_s, lookForUpdates,
            [](P &program) { findList(program, feedText(feedItem("9.0"))); }},
        {u"updates-checking"_s, lookForUpdates,
            [](P &program) {
                openUpdates(program);
                program.features().updates.pane.checkNow();
            }},
    };
}

} // namespace quillon::test
