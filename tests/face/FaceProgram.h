// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "face/InterfaceOnFakes.h"
#include "fakes/FakePlatform.h"

#include <QApplication>

#include <optional>

namespace quillon::test {

/// The whole program with its windows, on a machine of fakes: a laptop on a Wi-Fi network, with a
/// wire that is not plugged in, a helper, and a registry of a few manufacturers. Its clock stands
/// still until somebody turns it. Main thread; needs a QApplication.
class FaceProgram
{
public:
    /// Not started yet: the machine can still be changed.
    explicit FaceProgram(const Appearance &appearance);
    ~FaceProgram();

    /// A rule in the records; before start().
    void saveRule(const QVariantMap &values);
    /// A new random address for the radio every five minutes.
    static QVariantMap repeatedRule(const QString &name);
    void saveAddress(const QString &address, const QString &name);

    /// Starts it with its window on the screen and the radio selected, and lets happen what a start
    /// brings about.
    void start();
    /// Lets everything happen that is due, on the machine and on the screen.
    void settle();

    Features &features() { return m_program->features(); }
    /// Every window that is on the screen, popovers and menus too; the program's own first.
    static QList<QWidget *> windows();
    /// The part with that object name; it must exist.
    template <typename T>
    static T &part(const QString &name)
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name && qobject_cast<T *>(window) != nullptr) {
                return *qobject_cast<T *>(window);
            }
            if (auto *found = window->findChild<T *>(name)) {
                return *found;
            }
        }
        qFatal("no %s", qUtf8Printable(name));
    }

    static const QString radio;
    static const QString wire;
    FakePlatform machine;

private:
    void fillMachine();
    void fillRegistry();

    Appearance m_appearance;
    std::optional<QuillonAppDelegate> m_program;
    std::optional<InterfaceOnFakes> m_interface;
};

} // namespace quillon::test
