// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "face/FaceScenes.h"

namespace quillon::test {

// What faceScenes() puts together, each in a file of its name.

QList<FaceScene> mainWindowScenes();
/// What opens out of the main window: popovers, the list of vendors and the menu.
QList<FaceScene> popoverScenes();
/// The panes that are in no other subject.
QList<FaceScene> preferencesScenes();
/// The account: its lines in the pane, and the dialog in which one signs in.
QList<FaceScene> cloudScenes();
QList<FaceScene> overviewScenes();
QList<FaceScene> updateScenes();
/// The editor of the rules with both its tabs, rules and saved items.
QList<FaceScene> ruleScenes();
QList<FaceScene> historyScenes();

} // namespace quillon::test
