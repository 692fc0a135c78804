// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a program with a window costs: what is above it is our own.
#include <QApplication>
#include <QLabel>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLabel window(QStringLiteral("Reference"));
    window.resize(480, 320);
    window.show();
    return QApplication::exec();
}
