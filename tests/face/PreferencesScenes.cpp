// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

void expectProblems(FaceProgram &program)
{
    FakePlatform &machine = program.machine;
    machine.hotKeys.takenByOthers = {u"Ctrl+Alt+M"_s};
    machine.loginItem.desktop = LoginItem::Desktop::Ignores;
    for (const auto &[key, value] : std::initializer_list<std::pair<QString, QVariant>>{
             {keys::loginStart, true}, {keys::showKeyEnabled, true},
             {keys::showKeyCombo, u"Ctrl+Alt+M"_s}, {keys::randomKeyEnabled, true},
             {keys::randomKeyCombo, u"Ctrl+Alt+Shift+Meta+PgDown"_s}, {keys::showInMenu, false}}) {
        machine.settings.set(key, value);
    }
}

void ownInterfaces(FaceProgram &program)
{
    program.machine.owners.own(FaceProgram::radio);
    program.machine.settings.set(keys::defaultTimerMinutes, 30);
    program.machine.settings.set(keys::driftAlarm, true);
}

void plugManyInterfaces(FaceProgram &program)
{
    for (int index = 0; index < 200; ++index) {
        const QString address = u"02:00:5e:00:55:%1"_s.arg(index, 2, 16, QChar(u'0'));
        program.machine.host.plug(
            {u"Ethernet"_s, u"enp%1s0f1np1"_s.arg(index + 10), address, address, {}});
    }
}

using P = FaceProgram;

} // namespace

QList<FaceScene> preferencesScenes()
{
    return {
        {u"preferences-general"_s, nullptr, openPane<PreferencesPane::General>},
        {u"preferences-general-told"_s, expectProblems, openPane<PreferencesPane::General>},
        {u"preferences-general-recording"_s, nullptr,
            [](P &program) {
                openPane<PreferencesPane::General>(program);
                program.features().preferences.general.showRecorder.begin();
            }},
        {u"preferences-general-no-shortcuts"_s,
            [](P &program) {
                program.machine.hotKeys.isOffered = false;
                program.machine.loginItem.installed.reset();
            },
            openPane<PreferencesPane::General>},
        {u"preferences-advanced"_s, ownInterfaces, openPane<PreferencesPane::Advanced>},
        {u"preferences-advanced-no-helper"_s, removeHelper, openPane<PreferencesPane::Advanced>},
        {u"preferences-advanced-many"_s, plugManyInterfaces, openPane<PreferencesPane::Advanced>},
        {u"preferences-display"_s, nullptr, openPane<PreferencesPane::Display>},
        {u"preferences-vendor-data"_s, nullptr, openPane<PreferencesPane::VendorData>},
        {u"preferences-vendor-data-loading"_s, nullptr,
            [](P &program) {
                openPane<PreferencesPane::VendorData>(program);
                program.features().vendors.pane.showDownloadBegun();
                program.features().vendors.pane.showProgress(16384, 1'200'000, 3'900'000);
            }},
        {u"preferences-vendor-data-failed"_s, nullptr,
            [](P &program) {
                openPane<PreferencesPane::VendorData>(program);
                program.features().vendors.pane.showParsingFailed();
            }},
        {u"preferences-about"_s, nullptr, openPane<PreferencesPane::About>},
        {u"preferences-about-failed"_s, nullptr,
            [](P &program) {
                program.machine.links.hasBrowser = false;
                openPane<PreferencesPane::About>(program);
                program.features().preferences.about.openLink(0);
            }},
    };
}

} // namespace quillon::test
