// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace quillon::test {

class FaceProgram;

/// A state of the program that has a look of its own.
struct FaceScene
{
    QString name; ///< as in the name of its picture
    /// What the machine is like beforehand; null for the usual one.
    void (*prepare)(FaceProgram &program);
    /// What is done once the program has started; null for nothing.
    void (*act)(FaceProgram &program);
};

/// Every window, popover and state, subject by subject (SceneSubjects.h). A new state is a new line
/// in the file of its subject.
const QList<FaceScene> &faceScenes();

/// Starts the program and brings it into that state. `windowShown` is called when its window has
/// been asked for: a display may take its time to put it where it stays.
void enter(
    const FaceScene &scene, FaceProgram &program, const std::function<void()> &windowShown = [] {});

} // namespace quillon::test
