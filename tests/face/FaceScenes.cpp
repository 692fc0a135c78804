// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/FaceScenes.h"

#include "face/FaceProgram.h"
#include "face/SceneSubjects.h"

namespace quillon::test {

const QList<FaceScene> &faceScenes()
{
    static const QList<FaceScene> scenes = mainWindowScenes() + popoverScenes() +
                                           preferencesScenes() + overviewScenes() + updateScenes() +
                                           ruleScenes() + historyScenes() + cloudScenes();
    return scenes;
}

void enter(const FaceScene &scene, FaceProgram &program, const std::function<void()> &windowShown)
{
    if (scene.prepare != nullptr) {
        scene.prepare(program);
    }
    program.start();
    windowShown();
    if (scene.act != nullptr) {
        scene.act(program);
    }
    program.settle();
}

} // namespace quillon::test
