// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a program with a window costs: what is above it is our own.
#include <QApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLabel window(u"Reference"_s);
    window.resize(480, 320);
    window.show();
    return QApplication::exec();
}
