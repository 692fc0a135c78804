// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "face/FaceProgram.h"
#include "presentation/preferences/PreferencesPane.h"

namespace quillon::test {

// What scenes of more than one subject prepare or do.

void removeHelper(FaceProgram &program);
void unplugEverything(FaceProgram &program);
/// With names short, long and left out.
void saveAddresses(FaceProgram &program);
/// One that runs and two that do not.
void saveRules(FaceProgram &program);
/// More than a window has room for.
void saveManyRules(FaceProgram &program);

void randomize(FaceProgram &program);

template <PreferencesPane pane>
void openPane(FaceProgram &program)
{
    program.features().preferencesWindow.showPane(pane);
    program.features().preferencesWindow.openPreferencesWindow();
}

} // namespace quillon::test
