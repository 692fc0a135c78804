// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/SceneSteps.h"

#include "store/model/QuillonModel.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

void removeHelper(FaceProgram &program)
{
    program.machine.helper.installed = false;
}

void unplugEverything(FaceProgram &program)
{
    program.machine.host.unplug(FaceProgram::radio);
    program.machine.host.unplug(FaceProgram::wire);
    program.machine.wifi.interface.reset();
}

void saveAddresses(FaceProgram &program)
{
    program.saveAddress(u"02:00:5e:00:53:0a"_s, u"Home"_s);
    program.saveAddress(u"02:00:5e:00:53:0b"_s, u"Office"_s);
    program.saveAddress(u"02:00:5e:00:53:0c"_s, u"Guest lab"_s);
    program.saveAddress(u"02:00:5e:00:53:0d"_s, u"02:00:5e:00:53:0d"_s);
    program.saveAddress(u"02:00:5e:00:53:0e"_s, u"The old printer on the third floor, east wing"_s);
}

void saveRules(FaceProgram &program)
{
    program.saveRule(FaceProgram::repeatedRule(u"Harbor Café"_s));
    for (const auto &name : {u"Office"_s, u"Any network that has no rule of its own"_s}) {
        QVariantMap rule = FaceProgram::repeatedRule(name);
        rule[model::rule::enabled] = false;
        program.saveRule(rule);
    }
}

void saveManyRules(FaceProgram &program)
{
    for (int index = 0; index < 30; ++index) {
        auto rule = FaceProgram::repeatedRule(u"Rule %1"_s.arg(index));
        rule[model::rule::enabled] = index == 0;
        program.saveRule(rule);
    }
}

void randomize(FaceProgram &program)
{
    program.features().mainWindow.randomizeAddress();
}

} // namespace quillon::test
