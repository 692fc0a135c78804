// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/FaceLook.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QRegularExpression>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

constexpr double usualPointSize = 10;

/// Named, so that the theme takes it as the desktop's own wish.
QFont textFont(int scale)
{
    const QString preferred = u"Inter"_s;
    QFont font(QFontDatabase::families().contains(preferred) ? preferred : u"DejaVu Sans"_s);
    font.setPointSizeF(usualPointSize * scale);
    return font;
}

/// Two fifths of the word, at least a letter, and narrow and wide ones as they come.
QString growth(const QString &word)
{
    const qsizetype more = (word.size() * 2 + 4) / 5;
    return word.right(more).toLower();
}

} // namespace

QString DressedApplication::WordyLanguage::translate(
    const char *, const char *text, const char *, int) const
{
    const QString english = QString::fromUtf8(text);
    QString longer;
    QString word;
    bool isPlaceholder = false;
    for (const QChar character : english + u' ') {
        if (character.isLetter() && !isPlaceholder) {
            word += character;
            continue;
        }
        longer += word + growth(word) + character;
        word.clear();
        isPlaceholder = character == u'%' || (isPlaceholder && character == u'L');
    }
    longer.chop(1);
    return longer;
}

QStringList spokenLanguages()
{
    QStringList languages = QDir(u":/translations"_s).entryList();
    languages.replaceInStrings(QRegularExpression(u"^quillon_|\\.qm$"_s), QString());
    return languages;
}

DressedApplication::DressedApplication(const FaceLook &look)
    : m_font(QApplication::font())
    , m_direction(QApplication::layoutDirection())
{
    QApplication::setFont(textFont(look.textScale));
    if (!look.language.isEmpty()) {
        m_language.emplace(QStringList{look.language});
    }
    const bool isMirrored = look.mirrored || (m_language && m_language->isRightToLeft());
    QApplication::setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    if (look.wordy) {
        QCoreApplication::installTranslator(&m_wordyLanguage);
    }
}

DressedApplication::~DressedApplication()
{
    QCoreApplication::removeTranslator(&m_wordyLanguage);
    QApplication::setLayoutDirection(m_direction);
    QApplication::setFont(m_font);
}

} // namespace quillon::test
