// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PlainText.h"

#include "base/CutText.h"
#include "base/Isolates.h"

#include <QGuiApplication>
#include <QLabel>
#include <QTextBoundaryFinder>
#include <QTextDocument>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLine = 120;
constexpr qsizetype entryEnd = 24;
constexpr qsizetype longestMessage = 2000;
constexpr qsizetype longestToolTip = 1000;
/// In characters; a longer word may be broken.
constexpr qsizetype longestWord = 24;
constexpr QChar zeroWidthSpace = u'\u200B';
/// A longer tool tip is broken into lines, which only HTML can.
constexpr qsizetype widestToolTip = 160;

/// Embeddings, overrides and isolates: they turn round what stands after the text as well, except
/// an isolate that ends by itself, whatever is in it.
bool turnsTextRound(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u'\u202A' && code <= u'\u202E') || code == u'\u2066' || code == u'\u2067';
}

bool breaksLine(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

QString clean(QString text, bool keepLineBreaks)
{
    const auto halves = halfIsolates(text);
    for (const qsizetype place : halves) {
        text[place] = QChar::ReplacementCharacter;
    }
    for (QChar &character : text) {
        if (turnsTextRound(character)) {
            character = QChar::ReplacementCharacter;
        } else if (breaksLine(character) && !(keepLineBreaks && character == u'\n')) {
            character = u' ';
        }
    }
    return text;
}

/// So many characters of it at most. What is cut out of an isolate no longer needs one.
QString cutToRoom(const QString &text, qsizetype longest)
{
    QString cut = cutText(text, longest);
    const auto halves = halfIsolates(cut);
    for (auto place = halves.crbegin(); place != halves.crend(); ++place) {
        cut.remove(*place, 1);
    }
    return cut;
}

/// What is no space and stands together, with places where it may be broken if it is long.
QString breakableWord(const QString &word)
{
    if (word.size() <= longestWord) {
        return word;
    }
    QString breakable;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, word);
    qsizetype begin = 0;
    for (qsizetype end = characters.toNextBoundary(); end > 0; end = characters.toNextBoundary()) {
        breakable += QStringView(word).sliced(begin, end - begin);
        breakable += zeroWidthSpace;
        begin = end;
    }
    return breakable;
}

QString breakable(const QString &text)
{
    QString result;
    QString word;
    for (const QChar character : text) {
        if (character.isSpace()) {
            result += breakableWord(word) + character;
            word.clear();
        } else {
            word += character;
        }
    }
    return result + breakableWord(word);
}

} // namespace

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    // A Latin name in a mirrored window would stand where it begins, away from all the others.
    if (QGuiApplication::isRightToLeft()) {
        label->setAlignment(Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignVCenter);
    }
    label->setText(text);
    return label;
}

void showLine(QLabel &label, const QString &text, int widest)
{
    const QString line = plainLine(text);
    label.setText(label.fontMetrics().elidedText(line, Qt::ElideRight, widest));
    // Otherwise it is the text without ampersands.
    label.setAccessibleName(line);
}

void showBroken(QLabel &label, const QString &text)
{
    label.setText(breakable(text));
    label.setAccessibleName(text);
}

QString plainLine(const QString &text)
{
    return cutToRoom(clean(text, false), longestLine);
}

QString plainEntry(const QString &text)
{
    const QString line = clean(text, false);
    if (line.size() <= longestLine) {
        return line;
    }
    QString end = line.right(entryEnd);
    if (end.front().isLowSurrogate()) {
        end.remove(0, 1);
    }
    return withoutIsolates(cutText(line, longestLine - end.size()) + end);
}

QString plainParagraphs(const QString &text)
{
    return cutToRoom(clean(text, true), longestMessage);
}

QString plainToolTip(const QString &text)
{
    const QString tip = cutToRoom(clean(text, false), longestToolTip);
    const bool isLong = tip.size() > widestToolTip;
    if (!isLong && !Qt::mightBeRichText(tip)) {
        return tip;
    }
    const QString space = isLong ? u"pre-wrap"_s : u"pre"_s;
    return u"<p style='white-space:%1'>%2</p>"_s.arg(space, tip.toHtmlEscaped());
}

} // namespace quillon
