// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

void openOverview(FaceProgram &program)
{
    program.features().presence.goTo(Destination::Overview);
    program.settle();
}

/// Another interface with a long name, and one that was taken away.
void plugMore(FaceProgram &program)
{
    saveRules(program);
    program.machine.host.plug({u"USB 10/100/1000 LAN of the docking station on the desk"_s,
        u"enx00005e005310"_s, u"00:00:5e:00:53:10"_s, u"02:00:5e:00:53:10"_s, {}});
    program.machine.host.plug(
        {u"Bridge"_s, u"br0"_s, u"00:00:5e:00:53:11"_s, u"00:00:5e:00:53:11"_s, {}});
    program.machine.settings.set(keys::deviceDict,
        QVariantMap{{FaceProgram::wire,
            QVariantMap{{record::vendor,
                u"An organization whose name is as long as the registry admits (02A005)"_s}}}});
}

void openBusyOverview(FaceProgram &program)
{
    openOverview(program);
    program.machine.host.unplug(u"br0"_s);
    program.machine.networkChanges.networkChanges();
    program.features().overview.controller()->randomize(2);
    program.settle();
    program.machine.helper.mood = FakeHelper::Mood::Refusing;
    program.features().overview.controller()->randomize(0);
    program.settle();
    program.machine.helper.mood = FakeHelper::Mood::Hanging;
    program.features().overview.controller()->randomize(1);
}

void plugMany(FaceProgram &program)
{
    for (int index = 0; index < 40; ++index) {
        const QString address = u"00:00:5e:00:54:%1"_s.arg(index, 2, 16, QChar(u'0'));
        program.machine.host.plug(
            {u"Ethernet"_s, u"eth%1"_s.arg(index), address, address, {}, index % 3 == 0});
    }
}

using P = FaceProgram;

} // namespace

QList<FaceScene> overviewScenes()
{
    return {
        {u"overview"_s, saveRules,
            [](P &program) {
                randomize(program);
                program.settle();
                openOverview(program);
            }},
        {u"overview-states"_s, plugMore, openBusyOverview},
        {u"overview-one"_s, [](P &program) { program.machine.host.unplug(FaceProgram::wire); },
            openOverview},
        {u"overview-none"_s, unplugEverything, openOverview},
        {u"overview-many"_s, plugMany, openOverview},
        {u"overview-no-helper"_s, removeHelper, openOverview},
        {u"overview-new-interface"_s, nullptr,
            [](P &program) {
                openOverview(program);
                plugMany(program);
                program.machine.networkChanges.networkChanges();
            }},
        {u"overview-narrow"_s, saveRules,
            [](P &program) {
                openOverview(program);
                FaceProgram::part<QWidget>(u"overview"_s).resize(1, 1);
            }},
    };
}

} // namespace quillon::test
