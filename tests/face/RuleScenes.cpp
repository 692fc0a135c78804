// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"
#include "history/Connection.h"
#include "history/KnownPlaces.h"
#include "networks/SpecialNetworks.h"
#include "store/model/QuillonModel.h"
#include "ui/widgets/TokenField.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

void openSavedItems(FaceProgram &program)
{
    program.features().networks.savedNetworks.addCurrentNetworkToSavedList();
    program.features().presence.goTo(Destination::SavedItems);
    program.settle();
}

/// What the first token of the field opens.
void openToken(FaceProgram &program, const QString &field)
{
    openSavedItems(program);
    for (QWidget *widget : QApplication::allWidgets()) {
        auto *tokens = qobject_cast<TokenField *>(widget);
        if (tokens != nullptr && tokens->isVisible() && tokens->accessibleName() == field) {
            Q_EMIT tokens->opened(0);
            return;
        }
    }
    qFatal("no %s", qUtf8Printable(field));
}

/// A button of the window in front, pressed.
QPushButton &press(const QString &text)
{
    for (QWidget *widget : QApplication::allWidgets()) {
        auto *button = qobject_cast<QPushButton *>(widget);
        if (button != nullptr && button->isVisible() && button->text() == text) {
            button->click();
            return *button;
        }
    }
    qFatal("no %s", qUtf8Printable(text));
}

/// The form that one of the two cards opens, as far as it was filled in by then.
void openNewEntry(FaceProgram &program, const QString &button, const QStringList &texts)
{
    openSavedItems(program);
    const QPushButton &opener = press(button);
    program.settle();
    const auto fields = opener.findChildren<QLineEdit *>();
    for (qsizetype index = 0; index < texts.size(); ++index) {
        fields.at(index)->setFocus();
        fields.at(index)->insert(texts.at(index));
    }
}

/// More than the lists take at once.
void importHistory(FaceProgram &program)
{
    ManagedObjectContext &context = program.features().history.store.managedObjectContext();
    const ManagedObjectContext::UndoDisabled facts(context);
    const QDateTime now = program.machine.scheduler.now();
    for (int number = 0; number < KnownPlaces::most + 1; ++number) {
        Connection record(context.insertNewObject(model::Connection));
        record.setDate(now.addSecs(-number));
        record.setAddress(u"02:00:5E:00:57:%1"_s.arg(number, 2, 16, QChar(u'0')).toUpper());
        record.setSsid(u"Harbor-Guest"_s);
        record.setBssid(u"a4:2b:b0:11:22:33"_s);
    }
    context.save();
    openSavedItems(program);
    press(localized("Import from History"));
}

/// Rules of every kind, as somebody has them who uses them.
void saveEditorRules(FaceProgram &program)
{
    const QString home = u"a4:2b:b0:11:22:33"_s;
    program.machine.settings.set(keys::savedNetworks,
        QVariantMap{
            {home, QVariantMap{{savedentry::BSSID, home}, {savedentry::SSID, u"Harbor Café"_s},
                       {savedentry::name, u"Harbor Café"_s}}}});
    program.machine.settings.set(keys::defaultTimerMinutes, 30);
    program.saveAddress(u"02:00:5e:00:53:0a"_s, u"Lab printer"_s);
    auto cafe = FaceProgram::repeatedRule(u"Café"_s);
    cafe[model::rule::network] = home;
    cafe[model::rule::timerMins] = 30;
    program.saveRule(cafe);
    auto stays = FaceProgram::repeatedRule(u"Everywhere else it stays itself"_s);
    stays[model::rule::action] = Rule::doNothing;
    program.saveRule(stays);
    auto login = FaceProgram::repeatedRule(u"Start clean"_s);
    login[model::rule::device] = FaceProgram::wire;
    login[model::rule::network] = QString();
    login[model::rule::isLogin] = true;
    program.saveRule(login);
    auto unknown = FaceProgram::repeatedRule(u"Unknown places"_s);
    unknown[model::rule::network] = anUnknownNetwork;
    unknown[model::rule::changeAction] = Rule::once;
    unknown[model::rule::enabled] = false;
    unknown[model::rule::vendor] =
        u"Alpine Antennas and Measuring Instruments Company Limited (02A002)"_s;
    program.saveRule(unknown);
    auto lab = FaceProgram::repeatedRule(u"Lab"_s);
    lab[model::rule::device] = FaceProgram::wire;
    lab[model::rule::address] = u"02:00:5e:00:53:0a"_s;
    lab[model::rule::enabled] = false;
    program.saveRule(lab);
}

void openRules(FaceProgram &program)
{
    program.features().presence.goTo(Destination::Rules);
    program.settle();
    program.features().rules.table.selectRow(0);
}

void openRulesWithWarning(FaceProgram &program)
{
    openRules(program);
    program.features().rules.preferences.showNetworkWarning();
}

void openNetworkForm(FaceProgram &program)
{
    program.features().presence.goTo(Destination::NewNetworkRule);
    RuleFormModel &form = program.features().rules.form;
    form.setName(u"Café"_s);
    form.actionSelectionChanged(Rule::changeAddress);
    form.timerSelectionChanged(Rule::every);
}

/// Nothing is saved yet, and the form says so.
void openFormForUnsavedNetwork(FaceProgram &program)
{
    openNetworkForm(program);
    program.features().rules.form.changeNetwork(2);
}

void openFormVendors(FaceProgram &program)
{
    openNetworkForm(program);
    program.settle();
    program.features().vendors.ruleField.showVendorViewPopover();
}

void openLoginForm(FaceProgram &program)
{
    program.features().presence.goTo(Destination::NewLoginRule);
    program.features().rules.form.setName(u"Start clean"_s);
}

void deleteRule(FaceProgram &program)
{
    openRules(program);
    program.features().rules.preferences.deleteRule();
}

using P = FaceProgram;

} // namespace

QList<FaceScene> ruleScenes()
{
    return {
        {u"saved-items"_s, saveAddresses, openSavedItems},
        {u"saved-items-empty"_s, nullptr,
            [](P &program) { program.features().presence.goTo(Destination::SavedItems); }},
        {u"popover-saved-address"_s, saveAddresses,
            [](P &program) { openToken(program, localized("Addresses")); }},
        {u"popover-saved-network"_s, saveAddresses,
            [](P &program) { openToken(program, localized("Networks")); }},
        {u"popover-new-address"_s, nullptr,
            [](P &program) { openNewEntry(program, localized("Address…"), {}); }},
        {u"popover-new-address-group"_s, nullptr,
            [](P &program) {
                openNewEntry(program, localized("Address…"), {u"01:00:5e:00:00:01"_s, u"Lab"_s});
            }},
        {u"popover-new-network-saved"_s, nullptr,
            [](P &program) {
                const QString bssid = program.machine.settings.getDictionary(keys::currentWiFiDict)
                                          .value(wifirecord::BSSID)
                                          .toString();
                openNewEntry(program, localized("Network…"), {u"Harbor"_s, bssid});
            }},
        {u"saved-items-imported"_s, saveAddresses, importHistory},
        {u"rules"_s, saveEditorRules, openRules},
        {u"rules-empty"_s, nullptr, openRules},
        {u"rules-many"_s, saveManyRules, openRules},
        {u"rules-warning"_s, saveEditorRules, openRulesWithWarning},
        {u"rule-deleted"_s, saveEditorRules, deleteRule},
        {u"rule-network"_s, saveEditorRules, openNetworkForm},
        {u"rule-network-unsaved"_s, nullptr, openFormForUnsavedNetwork},
        {u"rule-vendors"_s, saveEditorRules, openFormVendors},
        {u"rule-login"_s, saveEditorRules, openLoginForm},
    };
}

} // namespace quillon::test
