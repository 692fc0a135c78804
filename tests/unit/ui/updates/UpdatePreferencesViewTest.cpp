// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/updates/UpdatePreferencesView.h"

#include "presentation/updates/UpdatePreferencesViewController.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/InlineLine.h"
#include "unit/updates/UpdaterFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class UpdatePreferencesViewTest : public UpdaterFixture
{
protected:
    UpdatePreferencesViewTest()
    {
        theme.apply();
        theme.setAnimated(false);
        make(source);
    }

    void make(const UpdateSource &from)
    {
        pane.reset();
        model.reset();
        create(from);
        updater->begin();
        model.emplace(*updater, from.version);
        QObject::connect(&*updater, &Updater::changed, &*model, [this] { model->refresh(); });
        pane.emplace(*model, theme);
        pane->show();
    }

    template <typename T>
    T &part(const char *name) const
    {
        T *const found = pane->findChild<T *>(QString::fromLatin1(name));
        if (found == nullptr) {
            qFatal("no %s", name);
        }
        return *found;
    }
    QCheckBox &check() const { return part<QCheckBox>("checkForUpdatesButton"); }
    QCheckBox &autoInstall() const { return part<QCheckBox>("autoInstallButton"); }
    QComboBox &interval() const { return part<QComboBox>("intervalPopup"); }
    BusyButton &checkNow() const { return part<BusyButton>("checkNowButton"); }
    InlineLine &result() const { return part<InlineLine>("updateResult"); }
    QFrame &offer() const { return part<QFrame>("offeredVersion"); }
    QStringList shownTexts() const
    {
        QStringList texts;
        for (const QLabel *label : pane->findChildren<QLabel *>()) {
            if (label->isVisible()) {
                texts.append(label->text());
            }
        }
        return texts;
    }
    void find(const QByteArray &version, const QByteArray &notes,
        const QByteArray &page = "https://pages.example/new")
    {
        http.serve(source.feed, this->page(key.sign(feedText(feedItem(version, page, notes)))));
        checkNow().click();
        scheduler.runPending();
    }

    Theme theme;
    std::optional<UpdatePreferencesViewController> model;
    std::optional<UpdatePreferencesView> pane;
};

TEST_F(UpdatePreferencesViewTest, ShowsTheSettings)
{
    EXPECT_FALSE(check().isChecked());
    EXPECT_FALSE(autoInstall().isChecked());
    EXPECT_EQ(interval().currentText(), u"Weekly"_s);
    settings.setBool(keys::SUEnableAutomaticChecks, true);
    settings.setBool(keys::SUAutomaticallyUpdate, true);
    settings.set(keys::SUScheduledCheckInterval, 86400);
    EXPECT_TRUE(check().isChecked());
    EXPECT_TRUE(autoInstall().isChecked());
    EXPECT_EQ(interval().currentText(), u"Daily"_s);
    settings.set(keys::SUScheduledCheckInterval, 86401);
    EXPECT_EQ(interval().currentIndex(), -1);
    EXPECT_EQ(settings.get(keys::SUScheduledCheckInterval).toLongLong(), 86401);
}

TEST_F(UpdatePreferencesViewTest, EachControlIsItsSetting)
{
    check().click();
    EXPECT_EQ(settings.get(keys::SUEnableAutomaticChecks), true);
    autoInstall().click();
    EXPECT_EQ(settings.get(keys::SUAutomaticallyUpdate), true);
    interval().setCurrentIndex(2);
    Q_EMIT interval().activated(2);
    EXPECT_EQ(settings.get(keys::SUScheduledCheckInterval).toLongLong(), 2592000);
    check().click();
    EXPECT_EQ(settings.get(keys::SUEnableAutomaticChecks), false);
    // As assistive technology does it.
    check().toggle();
    EXPECT_EQ(settings.get(keys::SUEnableAutomaticChecks), true);
}

TEST_F(UpdatePreferencesViewTest, WhatItShowsIsNotWrittenBack)
{
    settings.setBool(keys::SUEnableAutomaticChecks, true);
    settings.setBool(keys::SUAutomaticallyUpdate, true);
    settings.clearJournal();
    settings.changeFromOutside(keys::SUEnableAutomaticChecks, false);
    settings.changeFromOutside(keys::SUAutomaticallyUpdate, false);
    settings.changeFromOutside(keys::SUScheduledCheckInterval, 86400);
    scheduler.runPending();
    EXPECT_FALSE(check().isChecked());
    EXPECT_EQ(interval().currentText(), u"Daily"_s);
    EXPECT_EQ(settings.journal(), QStringList());
}

TEST_F(UpdatePreferencesViewTest, WhatIsAboutLooksByItselfCanBeSetWhileThereAreSome)
{
    EXPECT_FALSE(interval().isEnabled());
    EXPECT_FALSE(autoInstall().isEnabled());
    EXPECT_FALSE(interval().toolTip().isEmpty());
    check().click();
    EXPECT_TRUE(interval().isEnabled());
    EXPECT_TRUE(autoInstall().isEnabled());
    EXPECT_TRUE(interval().toolTip().isEmpty());
}

TEST_F(UpdatePreferencesViewTest, LooksWhenItIsTold)
{
    EXPECT_EQ(part<QLabel>("lastCheckLabel").text(), u"Not checked yet."_s);
    checkNow().click();
    EXPECT_TRUE(checkNow().isBusy());
    checkNow().click();
    EXPECT_EQ(requests(), 1);
    http.fail(http.last(), {httpErrorDomain, 3, u"no such host"_s});
    scheduler.runPending();
    EXPECT_FALSE(checkNow().isBusy());
    EXPECT_EQ(result().text(), u"The list of versions could not be fetched."_s);
    EXPECT_EQ(result().kind(), InlineLine::Kind::Notice);
    EXPECT_TRUE(part<QLabel>("lastCheckLabel").text().startsWith(u"Last checked: "_s));
    EXPECT_FALSE(offer().isVisible());
}

TEST_F(UpdatePreferencesViewTest, ShowsTheOfferAndLeadsToIt)
{
    find("4.1", "Faster.\nSmaller.");
    EXPECT_TRUE(offer().isVisible());
    EXPECT_TRUE(shownTexts().contains(u"Quillon 4.1 is available"_s));
    EXPECT_TRUE(shownTexts().contains(u"https://pages.example/new"_s));
    EXPECT_TRUE(shownTexts().contains(u"Faster.\nSmaller."_s));
    part<QPushButton>("openOfferButton").click();
    EXPECT_EQ(center.opened.size(), 1);
    center.hasBrowser = false;
    part<QPushButton>("openOfferButton").click();
    EXPECT_EQ(result().text(), u"No browser could be opened."_s);
    find("4.0", "");
    EXPECT_FALSE(offer().isVisible());
    EXPECT_EQ(result().kind(), InlineLine::Kind::Positive);
}

TEST_F(UpdatePreferencesViewTest, NotesBeginWhereTheirOwnLanguageDoes)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    make(source);
    find("4.1", "New in this version");
    EXPECT_FALSE(part<QLabel>("releaseNotes").alignment().testFlag(Qt::AlignAbsolute));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(UpdatePreferencesViewTest, NotesAreNoMarkupAndDoNotMakeItWider)
{
    find("4.1", "&lt;b&gt;bold&lt;/b&gt; &lt;img src=x&gt; a&#x202E;b &amp;File");
    const QLabel &notes = part<QLabel>("releaseNotes");
    EXPECT_EQ(notes.textFormat(), Qt::PlainText);
    EXPECT_TRUE(notes.text().startsWith(u"<b>bold</b> <img src=x> a\uFFFDb &File"_s))
        << notes.text().toStdString();
    find("4.1", "");
    EXPECT_FALSE(notes.isVisible());
    const int narrow = pane->minimumSizeHint().width();
    find("4.1", QByteArray(50'000, 'W'), "https://pages.example/" + QByteArray(1500, 'W'));
    EXPECT_TRUE(offer().isVisible());
    EXPECT_LT(notes.text().size(), 10'000);
    EXPECT_LT(pane->minimumSizeHint().width(), std::max(narrow, 640));
    EXPECT_LT(pane->sizeHint().height(), 800);
}

TEST_F(UpdatePreferencesViewTest, TabGoesAsOneReads)
{
    check().click();
    find("4.1", "Faster.");
    QStringList order;
    QWidget *widget = &checkNow();
    do {
        if (widget->isVisible() && widget->isEnabled() && !widget->objectName().isEmpty() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0) {
            order.append(widget->objectName());
        }
        widget = widget->nextInFocusChain();
    } while (widget != &checkNow());
    EXPECT_EQ(order, QStringList({u"checkNowButton"_s, u"openOfferButton"_s,
                         u"checkForUpdatesButton"_s, u"intervalPopup"_s, u"autoInstallButton"_s}));
}

TEST_F(UpdatePreferencesViewTest, ABuildThatKnowsNoListSaysSoAndKeepsItsSettings)
{
    make({{}, {}, u"4.0.0"_s});
    EXPECT_FALSE(checkNow().isVisible());
    EXPECT_FALSE(offer().isVisible());
    EXPECT_EQ(shownTexts().mid(0, 2),
        (QStringList{u"This copy of Quillon does not look for new versions."_s,
            u"It was built without a list of versions to ask for. Nothing is asked, whatever is "
            "chosen here."_s}));
    // They are those of the user's other computers, too.
    check().click();
    EXPECT_EQ(settings.get(keys::SUEnableAutomaticChecks), true);
    settings.changeFromOutside(keys::SUScheduledCheckInterval, 2592000);
    settings.changeFromOutside(keys::SUAutomaticallyUpdate, true);
    scheduler.runPending();
    EXPECT_EQ(interval().currentText(), u"Monthly"_s);
    EXPECT_TRUE(autoInstall().isChecked());
}

TEST_F(UpdatePreferencesViewTest, ABuildThatLeavesItToTheSystemShowsNothingToSwitch)
{
    make({{}, {}, u"4.0.0"_s, true});
    EXPECT_FALSE(check().isVisible());
    EXPECT_FALSE(checkNow().isVisible());
    EXPECT_FALSE(offer().isVisible());
    EXPECT_EQ(shownTexts(), QStringList({u"This copy of Quillon does not look for new versions."_s,
                                u"Your system's software updates bring new versions."_s}));
}

} // namespace
} // namespace quillon::test
