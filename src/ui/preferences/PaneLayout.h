// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QVBoxLayout;
class QWidget;

namespace quillon {

class InlineLine;
struct PreferencesLine;

// What the panes are laid out with.

/// The column of a pane; what is added to it stands at its top.
QVBoxLayout *makePaneColumn(QWidget &pane);
/// A card at the end of the pane, and the column in it; with a head where there is a title.
QVBoxLayout *addCard(QVBoxLayout &pane, const QString &title = {});
/// `line` below a check box, under its text.
void addUnderCheckBox(QVBoxLayout &card, QWidget *line);
/// Shows the line, or that there is none.
void sayLine(InlineLine &line, const PreferencesLine &what);

} // namespace quillon
