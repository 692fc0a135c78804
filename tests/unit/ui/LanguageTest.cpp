// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Isolates.h"
#include "base/Languages.h"
#include "base/Localized.h"
#include "face/FaceLook.h"
#include "unit/ui/UserInterfaceFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::SizeIs;

/// The whole program with its windows, in a language.
class LanguageTest : public UserInterfaceFixture, public ::testing::WithParamInterface<QString>
{
protected:
    void runIn(const QString &users)
    {
        language.emplace(QStringList{users});
        createWithWindows();
        startWithWindows();
        features().presence.openWindow();
        desktop->trayHost.become(true);
        machine.scheduler.runPending();
        QCoreApplication::processEvents();
    }

    /// Calls `visit(what, text)` with every text of every widget, also of those that do not show.
    template <typename Visitor>
    static void forEachText(Visitor visit)
    {
        for (const QWidget *widget : QApplication::allWidgets()) {
            if (const auto *label = qobject_cast<const QLabel *>(widget)) {
                visit("label", label->text());
            } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
                visit("button", button->text());
            } else if (const auto *field = qobject_cast<const QLineEdit *>(widget)) {
                visit("placeholder", field->placeholderText());
            }
            visit("name", widget->accessibleName());
            visit("description", widget->accessibleDescription());
            visit("tool tip", widget->toolTip());
            for (const QAction *action : widget->actions()) {
                visit("action", action->text());
            }
        }
    }

    /// Of controls that do the same, each has the same text.
    static QHash<QString, QSet<QString>> textsByMnemonic()
    {
        QHash<QString, QSet<QString>> texts;
        for (const QWidget *widget : QApplication::allWidgets()) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const QString text = label && label->buddy() ? label->text()
                                 : button                ? button->text()
                                                         : QString();
            const QString key = QKeySequence::mnemonic(text).toString();
            if (!key.isEmpty()) {
                texts[key].insert(text);
            }
        }
        return texts;
    }

    std::optional<UserLanguage> language;
};

TEST_P(LanguageTest, EveryMnemonicOfTheWindowLeadsToOneControl)
{
    runIn(GetParam());
    const QHash<QString, QSet<QString>> texts = textsByMnemonic();
    EXPECT_THAT(texts.values(), Each(SizeIs(1)));
    EXPECT_EQ(texts.size(), 5) << "address, apply, randomize, vendor, install";
}

TEST_P(LanguageTest, NoTextOfTheTableIsShownInEnglish)
{
    runIn(GetParam());
    features().statusMenu.menuWillOpen();
    QStringList seen;
    forEachText([&seen](const char *what, const QString &text) {
        EXPECT_EQ(text, localized(text)) << what;
        seen.append(text);
    });
    for (const char *text : {"A&ddress", "Interface", "&Randomize", "Quit Quillon"}) {
        EXPECT_THAT(seen, Contains(localized(text)));
    }
}

TEST_P(LanguageTest, MenusLeadToTheirInterfaces)
{
    runIn(GetParam());
    features().statusMenu.menuWillOpen();
    const auto &entries = features().statusMenu.entries();
    const auto titleOf = [](const char *text) {
        return withoutIsolates(filled(localized(text), {u"    "_s, QString()}));
    };
    const auto current = std::ranges::find_if(entries, [&](const MenuEntry &entry) {
        const QString title = withoutIsolates(entry.title);
        return title.startsWith(titleOf("%@Current Address · %@")) &&
               title.endsWith(factory[enp2s0], Qt::CaseInsensitive);
    });
    ASSERT_NE(current, entries.end()) << menuTitles().join(u'\n').toStdString();
    ASSERT_EQ(current->submenu.at(0).title, localized("Randomize"));
    const int row = static_cast<int>(current - entries.begin());
    features().statusMenu.activate({row, 0});
    machine.scheduler.advance(std::chrono::seconds(2));
    EXPECT_TRUE(isChanged(enp2s0));
    EXPECT_FALSE(isChanged(enp1s0));

    features().statusMenu.menuWillOpen();
    ASSERT_TRUE(
        withoutIsolates(menuTitles().at(row - 1)).startsWith(titleOf("%@Hardware Address · %@")));
    features().statusMenu.activate({row - 1, 0});
    machine.scheduler.advance(std::chrono::seconds(2));
    EXPECT_FALSE(isChanged(enp2s0));
}

TEST_P(LanguageTest, RulesOfItsFileActInAnotherLanguage)
{
    QVariantMap rule = randomOnce(enp1s0, u"on any network"_s);
    rule[model::rule::address] = [] {
        const UserLanguage ofTheFile({GetParam()});
        return localized("Random Address");
    }();
    saveRule(rule);
    runIn(GetParam() == u"de"_s ? u"en"_s : u"de"_s);
    EXPECT_TRUE(isChanged(enp1s0));
}

INSTANTIATE_TEST_SUITE_P(All, LanguageTest,
    ::testing::ValuesIn(QStringList{u"en"_s} + spokenLanguages()),
    [](const ::testing::TestParamInfo<QString> &tested) {
        return QString(tested.param).remove(u'_').toStdString();
    });

TEST_F(LanguageTest, AnInterfaceHasOneNameInWindowMenuAndMessages)
{
    const QString radio = u"wlp3s0"_s;
    const QString factoryAddress = u"3c:22:fb:00:00:03"_s;
    machine.host.plug({u"Wi-Fi"_s, radio, factoryAddress, factoryAddress, {}});
    setDeviceRecord(radio, record::localizedInterface, u"Réseau sans fil"_s);
    runIn(u"de"_s);
    select(radio);
    EXPECT_EQ(window().interfaceName, u"WLAN"_s);
    EXPECT_THAT(menuTitles(), Contains(u"WLAN · wlp3s0"_s));

    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(std::chrono::seconds(2));
    ASSERT_FALSE(machine.userNotifications.everShown.isEmpty());
    EXPECT_EQ(machine.userNotifications.everShown.last().title, u"WLAN: Adresse geändert"_s);
    EXPECT_EQ(deviceRecord(radio).value(record::interface), u"Wi-Fi"_s);
}

TEST_F(LanguageTest, RulesOfAnEnglishFileActInGerman)
{
    saveRule(randomOnce(enp1s0, u"on any network"_s));
    runIn(u"de"_s);
    EXPECT_TRUE(isChanged(enp1s0)) << "“Any Network” and “Random Address” stand in the file";
    EXPECT_FALSE(isChanged(enp2s0));
}

TEST_F(LanguageTest, RulesOfAGermanFileActInEnglish)
{
    QVariantMap rule = randomOnce(enp1s0, u"on any network"_s);
    rule[model::rule::address] = u"Zufällige Adresse"_s;
    saveRule(rule);
    runIn(u"en"_s);
    EXPECT_TRUE(isChanged(enp1s0));
}

TEST_F(LanguageTest, SettingsOfAnEnglishUserAreShownInGerman)
{
    setDeviceRecord(enp1s0, record::vendor, u"Random Address"_s);
    machine.settings.set(keys::externalIPAddress, u"Unknown..."_s);
    runIn(u"de"_s);
    EXPECT_EQ(features().vendors.choice.shownChoice(enp1s0), u"Zufällige Adresse"_s);
    EXPECT_EQ(features().vendors.field.state().text, u"Zufällige Adresse"_s);
    EXPECT_EQ(features().networks.externalAddressShown.text(), u"Unbekannt..."_s);

    features().vendors.choice.saveVendorSelection(u"Zufällige Adresse"_s);
    EXPECT_EQ(deviceRecord(enp1s0).value(record::vendor), u"Random Address"_s);
}

} // namespace
} // namespace quillon::test
