// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

template <FakeHelper::Mood mood>
void randomizeBy(FaceProgram &program)
{
    program.machine.helper.mood = mood;
    randomize(program);
}

void type(FaceProgram &program, const QString &text)
{
    program.features().mainWindow.editField(text);
}

void leaveNetwork(FaceProgram &program)
{
    program.machine.wifi.leave();
    auto &radio = program.machine.host.at(FaceProgram::radio);
    radio.ipv4.clear();
    radio.router.clear();
    radio.active = false;
    program.machine.settings.set(keys::externalIPAddress, u"Unknown..."_s);
}

void switchRadioOff(FaceProgram &program)
{
    leaveNetwork(program);
    program.machine.radioSwitch.turn(true);
}

void loseHelper(FaceProgram &program)
{
    program.machine.helper.installed = false;
    program.features().helper.updateHelperInstalledStatus();
}

void unplugRadio(FaceProgram &program)
{
    program.machine.host.unplug(FaceProgram::radio);
    program.machine.wifi.interface.reset();
    program.machine.networkChanges.networkChanges();
}

void removeFavorite(FaceProgram &program)
{
    program.features().networks.savedLists.chooseFavoriteButton();
    program.settle();
    program.features().networks.savedLists.chooseFavoriteButton();
}

using P = FaceProgram;

} // namespace

QList<FaceScene> mainWindowScenes()
{
    return {
        {u"main-window"_s, nullptr, randomize},
        {u"plain"_s, nullptr, nullptr},
        {u"typed"_s, nullptr, [](P &program) { type(program, u"02:00:5E:10:AB:CD"_s); }},
        {u"without-colons"_s, nullptr, [](P &program) { type(program, u"02005E10ABCD"_s); }},
        {u"incomplete"_s, nullptr, [](P &program) { type(program, u"02:00:5E"_s); }},
        {u"refused"_s, nullptr, [](P &program) { type(program, u"02::0:5E:10:AB:CD"_s); }},
        {u"group-address"_s, nullptr, [](P &program) { type(program, u"03:00:5E:10:AB:CD"_s); }},
        {u"changing"_s, nullptr, randomizeBy<FakeHelper::Mood::Hanging>},
        {u"change-refused"_s, nullptr, randomizeBy<FakeHelper::Mood::Refusing>},
        {u"helper-not-installed"_s, removeHelper, nullptr},
        {u"helper-installing"_s, removeHelper,
            [](P &program) { program.features().readMe.setInstalling(true); }},
        {u"helper-lost"_s, saveRules, loseHelper},
        {u"no-interface"_s, unplugEverything, nullptr},
        {u"interface-gone"_s, nullptr, unplugRadio},
        {u"all-interfaces-gone"_s, nullptr,
            [](P &program) {
                unplugEverything(program);
                program.machine.networkChanges.networkChanges();
            }},
        {u"not-connected"_s, leaveNetwork, nullptr},
        {u"other-interface"_s, nullptr,
            [](P &program) {
                program.features().mainWindow.changeInterfacefromPopup(FaceProgram::wire);
            }},
        {u"radio-off"_s, switchRadioOff, nullptr},
        {u"looking-up"_s, nullptr,
            [](P &program) {
                program.features().networks.externalAddressShown.refreshExternalIP();
            }},
        {u"countdown"_s, saveRules, nullptr},
        {u"countdown-paused"_s, saveRules,
            [](P &program) {
                program.features().rules.countdown.pauseCountdownTimer();
                program.machine.scheduler.advance(2s);
            }},
        {u"favorite-removed"_s, nullptr, removeFavorite},
    };
}

} // namespace quillon::test
