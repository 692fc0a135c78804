// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QTextDocument>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLine = 120;
constexpr qsizetype entryEnd = 24;
constexpr qsizetype longestMessage = 2000;
constexpr qsizetype longestToolTip = 1000;
/// A longer tool tip is broken into lines, which only HTML can.
constexpr qsizetype widestToolTip = 160;

/// Embeddings, overrides and isolates: they turn round what stands after the text as well.
bool turnsTextRound(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u'\u202A' && code <= u'\u202E') || (code >= u'\u2066' && code <= u'\u2069');
}

bool breaksLine(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

QString clean(QString text, bool keepLineBreaks)
{
    for (QChar &character : text) {
        if (turnsTextRound(character)) {
            character = QChar::ReplacementCharacter;
        } else if (breaksLine(character) && !(keepLineBreaks && character == u'\n')) {
            character = u' ';
        }
    }
    return text;
}

QString cut(const QString &text, qsizetype longest)
{
    if (text.size() <= longest) {
        return text;
    }
    QString kept = text.left(longest - 1);
    if (kept.back().isHighSurrogate()) {
        kept.chop(1);
    }
    return kept + u'…';
}

} // namespace

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
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

QString plainLine(const QString &text)
{
    return cut(clean(text, false), longestLine);
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
    return cut(line, longestLine - end.size()) + end;
}

QString plainParagraphs(const QString &text)
{
    return cut(clean(text, true), longestMessage);
}

QString plainToolTip(const QString &text)
{
    const QString tip = cut(clean(text, false), longestToolTip);
    const bool isLong = tip.size() > widestToolTip;
    if (!isLong && !Qt::mightBeRichText(tip)) {
        return tip;
    }
    const QString space = isLong ? u"pre-wrap"_s : u"pre"_s;
    return u"<p style='white-space:%1'>%2</p>"_s.arg(space, tip.toHtmlEscaped());
}

} // namespace quillon
