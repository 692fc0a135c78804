// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace quillon {

enum class Destination;
class Presence;
class Theme;

/// The end of the main window: the ways to the other windows, and the program's version.
class Footer : public QWidget
{
    Q_OBJECT

public:
    Footer(Presence &presence, const Theme &theme, QWidget *parent = nullptr);

    void showVersion(const QString &version);

private:
    void addWay(const QString &symbol, const QString &title, Qt::Key key, Destination destination);

    Presence &m_presence;
    const Theme &m_theme;
    QLabel *m_version;
};

} // namespace quillon
