// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Languages.h"

#include "base/Isolates.h"
#include "base/Localized.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

TEST(Languages, AreUsedAsLongAsTheirObjectLives)
{
    EXPECT_EQ(localized("Address"), u"Address"_s);
    {
        const UserLanguage german({u"de"_s});
        EXPECT_EQ(german.name(), u"de"_s);
        EXPECT_EQ(localized("Address"), u"Adresse"_s);
        EXPECT_EQ(localized(u"Address"_s), u"Adresse"_s);
        EXPECT_EQ(localized("in no table"), u"in no table"_s);
    }
    EXPECT_EQ(localized("Address"), u"Address"_s);
}

TEST(Languages, TheFirstThatThereIsATableForIsChosenAndEnglishNeedsNone)
{
    const auto chosen = [](const QStringList &wanted) { return UserLanguage(wanted).name(); };
    for (const char *wanted : {"de", "de-DE", "de_AT", "de-Latn-CH", "de-1996"}) {
        EXPECT_EQ(chosen({QString::fromLatin1(wanted)}), u"de"_s) << wanted;
    }
    EXPECT_EQ(chosen({u"tlh"_s, u"de-DE"_s, u"en"_s}), u"de"_s) << "the second, better than none";
    EXPECT_EQ(chosen({u"pt-BR"_s}), u"pt_BR"_s);
    for (const char *users : {"de_AT", "es_MX", "fr_CA", "pt_BR"}) {
        const QString name = QString::fromLatin1(users);
        EXPECT_TRUE(name.startsWith(chosen(QLocale(name).uiLanguages()))) << users;
    }
    for (const char *wanted : {"zh-CN", "zh-Hans-CN", "zh_Hans", "zh-Hans-SG"}) {
        EXPECT_EQ(chosen({QString::fromLatin1(wanted)}), u"zh_CN"_s) << wanted;
    }
    for (const char *traditional : {"zh-TW", "zh-Hant-TW", "zh-Hant", "zh_HansX"}) {
        EXPECT_EQ(chosen({QString::fromLatin1(traditional)}), u"en"_s) << traditional;
    }
    for (const char *english : {"en", "en-GB", "en_US", "en-Latn-US", "C"}) {
        EXPECT_EQ(chosen({QString::fromLatin1(english), u"de"_s}), u"en"_s) << english;
    }
    for (const char *none : {"", "tlh", "d", "deutsch", "_", "-de", "../quillon_de", "DE"}) {
        EXPECT_EQ(chosen({QString::fromLatin1(none)}), u"en"_s) << none;
    }
    EXPECT_EQ(chosen({}), u"en"_s);
}

TEST(Languages, KnowTheirDirection)
{
    EXPECT_TRUE(UserLanguage({u"ar-EG"_s}).isRightToLeft());
    for (const QString &other : {u"de"_s, u"ja"_s, u"en"_s, u"he"_s}) {
        EXPECT_FALSE(UserLanguage({other}).isRightToLeft()) << other.toStdString();
    }
}

TEST(Languages, BringQtsOwnTexts)
{
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    EXPECT_EQ(cancel(), u"Cancel"_s);
    const UserLanguage german({u"de"_s});
    EXPECT_EQ(cancel(), u"Abbrechen"_s);
}

struct Counted
{
    const char *language;
    qint64 count;
    const char *expected;
};

void PrintTo(const Counted &counted, std::ostream *out)
{
    *out << counted.language << ", " << counted.count;
}

class LanguagesCountedTest : public ::testing::TestWithParam<Counted>
{
};

TEST_P(LanguagesCountedTest, HasTheFormOfItsNumber)
{
    const UserLanguage language({QString::fromLatin1(GetParam().language)});
    EXPECT_EQ(localized("Rule deleted", "%Ln rules deleted", GetParam().count),
        QString::fromUtf8(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(English, LanguagesCountedTest,
    ::testing::Values(Counted{"en", 1, "Rule deleted"}, Counted{"en", 2, "2 rules deleted"}));
INSTANTIATE_TEST_SUITE_P(German, LanguagesCountedTest,
    ::testing::Values(Counted{"de", 0, "0 Regeln gelöscht"}, Counted{"de", 1, "Regel gelöscht"},
        Counted{"de", 2, "2 Regeln gelöscht"}));
INSTANTIATE_TEST_SUITE_P(Spanish, LanguagesCountedTest,
    ::testing::Values(Counted{"es", 0, "0 reglas eliminadas"}, Counted{"es", 1, "Regla eliminada"},
        Counted{"es", 2, "2 reglas eliminadas"}));
// Nothing is singular there.
INSTANTIATE_TEST_SUITE_P(French, LanguagesCountedTest,
    ::testing::Values(Counted{"fr", 0, "Règle supprimée"}, Counted{"fr", 1, "Règle supprimée"},
        Counted{"fr", 2, "2 règles supprimées"}));
INSTANTIATE_TEST_SUITE_P(BrazilianPortuguese, LanguagesCountedTest,
    ::testing::Values(
        Counted{"pt_BR", 0, "Regra excluída"}, Counted{"pt_BR", 2, "2 regras excluídas"}));

TEST(Languages, DatesAreInTheirWords)
{
    const QLocale locale;
    const QByteArray before = qgetenv("LC_TIME");
    const QByteArray all = qgetenv("LC_ALL");
    qunsetenv("LC_ALL");
    qputenv("LC_TIME", "de_AT.UTF-8");
    QLocale::setDefault(QLocale::system());
    {
        const UserLanguage german({u"de"_s});
        EXPECT_EQ(textLocale(), QLocale(QLocale::German, QLocale::Austria));
    }
    EXPECT_EQ(textLocale().language(), QLocale::English);
    QLocale::setDefault(locale);
    before.isNull() ? qunsetenv("LC_TIME") : qputenv("LC_TIME", before);
    all.isNull() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", all);
}

INSTANTIATE_TEST_SUITE_P(Arabic, LanguagesCountedTest,
    ::testing::Values(Counted{"ar", 0, "لم تُحذف أي قاعدة"}, Counted{"ar", 1, "حُذفت القاعدة"},
        Counted{"ar", 2, "حُذفت قاعدتان"}, Counted{"ar", 3, "حُذفت 3 قواعد"},
        Counted{"ar", 11, "حُذفت 11 قاعدة"}, Counted{"ar", 100, "حُذفت 100 قاعدة"}));
INSTANTIATE_TEST_SUITE_P(Japanese, LanguagesCountedTest,
    ::testing::Values(Counted{"ja", 1, "1 件のルールを削除しました"},
        Counted{"ja", 5, "5 件のルールを削除しました"}));
INSTANTIATE_TEST_SUITE_P(Chinese, LanguagesCountedTest,
    ::testing::Values(
        Counted{"zh_CN", 1, "已删除 1 条规则"}, Counted{"zh_CN", 5, "已删除 5 条规则"}));

TEST(Languages, ATextIsFoundInEachOfThem)
{
    const auto isRandom = [](const QString &text) {
        return isInAnyLanguage(text, "Random Address");
    };
    for (const char *users : {"en", "ar", "de", "es", "fr", "ja", "pt_BR", "zh_CN"}) {
        const UserLanguage language({QString::fromLatin1(users)});
        for (const QString &random : {u"Random Address"_s, u"Zufällige Adresse"_s,
                 u"عنوان عشوائي"_s, u"ランダムなアドレス"_s, u"随机地址"_s}) {
            EXPECT_TRUE(isRandom(random)) << users << random.toStdString();
        }
        for (const QString &other : {u""_s, QString(), u"random address"_s, u"Adresse"_s,
                 u"Random Address "_s, u"Address"_s}) {
            EXPECT_FALSE(isRandom(other)) << other.toStdString();
        }
    }
    EXPECT_FALSE(isInAnyLanguage({}, "in no table"));
}

TEST(Languages, WhatIsCutOutOfAStoredTextIsThereInEachOfThem)
{
    // The note of new identifiers stands behind the date, which ends at its bracket.
    for (const char *users : {"ar", "de", "es", "fr", "ja", "pt_BR", "zh_CN"}) {
        const UserLanguage language({QString::fromLatin1(users)});
        for (const qint64 added : {1, 2, 1000}) {
            const QString note = localized("", "%@ (added %@ new Identifiers)", added);
            EXPECT_TRUE(withoutIsolates(note).startsWith("%@ ("_L1)) << users;
        }
    }
}

} // namespace
} // namespace quillon
