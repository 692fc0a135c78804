// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Languages.h"

#include "base/Localized.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString sourceLanguage = u"en"_s;
const QString tables = u":/translations"_s;

QString tableOf(const QString &language)
{
    return tables + u"/quillon_"_s + language + u".qm"_s;
}

/// That of the UserLanguage that lives.
QString &currentName()
{
    static QString name = sourceLanguage;
    return name;
}

/// The user's. That of the system has its formats, but does not tell its language.
QLocale localeOfDates()
{
    if (QLocale() != QLocale::system()) {
        return {};
    }
    for (const char *name : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (!qEnvironmentVariableIsEmpty(name)) {
            return QLocale(qEnvironmentVariable(name));
        }
    }
    return QLocale::c();
}

/// "de-Latn-AT": the table of de_Latn_AT, else of de_Latn, else of de. Simplified Chinese is one
/// language in every country.
QString tableNameFor(QString language)
{
    language.replace(u'-', u'_');
    if (language == "zh_Hans"_L1 || language.startsWith("zh_Hans_"_L1)) {
        language = u"zh_CN"_s;
    }
    while (!language.isEmpty() && !QFile::exists(tableOf(language))) {
        language.truncate(std::max<qsizetype>(language.lastIndexOf(u'_'), 0));
    }
    return language;
}

/// "C" is the locale of a system that is not told any.
bool isEnglish(const QString &language)
{
    return language == "C"_L1 || language == sourceLanguage || language.startsWith("en-"_L1) ||
           language.startsWith("en_"_L1);
}

QString chosenFrom(const QStringList &wanted)
{
    for (const QString &language : wanted) {
        if (isEnglish(language)) {
            break;
        }
        if (const QString name = tableNameFor(language); !name.isEmpty()) {
            return name;
        }
    }
    return sourceLanguage;
}

} // namespace

UserLanguage::UserLanguage(const QStringList &wanted)
    : m_name(chosenFrom(wanted))
    , m_before(std::exchange(currentName(), m_name))
{
    if (m_name == sourceLanguage) {
        return;
    }
    if (m_ofQt.load(u"qtbase_"_s + m_name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_ofQt);
    }
    if (m_own.load(tableOf(m_name))) {
        QCoreApplication::installTranslator(&m_own);
    }
}

UserLanguage::~UserLanguage()
{
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_ofQt);
    currentName() = m_before;
}

bool UserLanguage::isRightToLeft() const
{
    return QLocale(m_name).textDirection() == Qt::RightToLeft;
}

QLocale textLocale()
{
    const QLocale users = localeOfDates();
    const QLocale own(currentName());
    const bool isEnglishWithoutLocale =
        users.language() == QLocale::C && own.language() == QLocale::English;
    return users.language() == own.language() || isEnglishWithoutLocale ? users : own;
}

bool isInAnyLanguage(const QString &text, const char *english)
{
    if (text.isEmpty()) {
        return false;
    }
    if (text == QLatin1String(english) || text == localized(english)) {
        return true;
    }
    QDirIterator files(tables, QDir::Files);
    while (files.hasNext()) {
        QTranslator table;
        if (table.load(files.next()) && text == table.translate(textContext, english)) {
            return true;
        }
    }
    return false;
}

} // namespace quillon
