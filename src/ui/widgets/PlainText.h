// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

class QLabel;

namespace quillon {

// Qt guesses whether a text is HTML. A text from outside (a manufacturer's or an interface's name,
// an error, a setting) must never be: a picture in it reads a file, and one that is a pipe hangs
// the program. Whatever is shown goes through here; tools/check-plain-text knows the ways around.

/// A label that shows its text as it is: no markup, no pictures, no links.
QLabel *plainLabel(const QString &text = {});
/// Shows `text` in a label as plainLine() has it, and says it to assistive technology. Its end is
/// left out where it would be wider than so many pixels: the window is as large as its texts.
void showLine(QLabel &label, const QString &text, int widest = QWIDGETSIZE_MAX);
/// Shows `text`, which came out of plainLine() or plainParagraphs(), in a label that breaks lines,
/// and says it to assistive technology. Words that are too long for a line are broken anywhere: no
/// word makes the window wider.
void showBroken(QLabel &label, const QString &text);

/// What a control or a menu shows of a text: one line of at most 120 characters. Line breaks and
/// other control characters are spaces, and what reverses the text around it is U+FFFD.
QString plainLine(const QString &text);
/// The same for an entry that its end tells apart, as a manufacturer's name with the identifier in
/// it: what is too long is left out in the middle.
QString plainEntry(const QString &text);
/// The same for a message: at most 2,000 characters, which keep their line breaks.
QString plainParagraphs(const QString &text);
/// A tool tip that reads `text`: on one line, at most 1,000 characters. Tool tips have no format of
/// their own, so a text that Qt would take for HTML comes back as HTML that reads like it.
QString plainToolTip(const QString &text);

} // namespace quillon
