// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/QuillonAppDelegate.h"
#include "base/NetworkKeys.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "fakes/FakePlatform.h"
#include "fakes/QtPrinting.h"
#include "networks/SpecialNetworks.h"
#include "rules/Rule.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <gmock/gmock.h>

#include <optional>

namespace quillon::test {

/// The whole program on a machine of fakes, not started yet: what a test puts into files and
/// settings is there from the beginning. Not started, the program follows no setting, broadcast or
/// change of the network.
class ProgramOnFakes : public ::testing::Test
{
protected:
    ProgramOnFakes()
    {
        machine.settings.registerDefaults(
            {{keys::displayNotifications, true}, {keys::showInMenu, true}});
    }

    /// Puts the program together; nothing has happened yet.
    void create(const QString &shippedVendorDatabase = {})
    {
        Platform platform = machine.platform();
        platform.places.shippedVendorDatabase = shippedVendorDatabase;
        program.emplace(platform);
    }
    /// Starts it. What is put off waits for the clock.
    void start()
    {
        program->launch().awakeFromNib();
        program->launch().applicationWillFinishLaunching();
        program->launch().applicationDidFinishLaunching();
    }
    /// Starts it, and lets everything happen that a start brings about.
    void run()
    {
        create();
        start();
        machine.scheduler.advance(std::chrono::seconds(2));
        machine.helper.clearJournal();
    }
    /// Chooses the interface in the window, and lets follow what follows.
    void select(const QString &device)
    {
        features().mainWindow.changeInterfacefromPopup(device);
        machine.scheduler.runPending();
    }

    Features &features() const { return program->features(); }
    const MainWindowModel::State &window() const { return features().mainWindow.state(); }
    QStringList menuTitles() const
    {
        QStringList titles;
        for (const MenuEntry &entry : features().statusMenu.entries()) {
            titles << entry.title;
        }
        return titles;
    }
    QString recordsPath() const { return machine.data.filePath(QStringLiteral("Quillon.sqlite")); }
    /// An enabled rule that gives `device` a random address once, on any network.
    static QVariantMap randomOnce(const QString &device, const QString &name)
    {
        return {{model::rule::device, device}, {model::rule::name, name},
            {model::rule::network, anyNetwork}, {model::rule::enabled, true},
            {model::rule::isLogin, false}, {model::rule::action, Rule::changeAddress},
            {model::rule::changeAction, Rule::once},
            {model::rule::address, QStringLiteral("Random Address")},
            {model::rule::vendor, QString()}};
    }
    static QVariantMap randomEveryFiveMinutes(const QString &device)
    {
        QVariantMap rule = randomOnce(device, QStringLiteral("every"));
        rule[model::rule::changeAction] = Rule::every;
        rule[model::rule::timerMins] = 5;
        return rule;
    }
    static QVariantMap randomAtLogin(const QString &device)
    {
        QVariantMap rule = randomOnce(device, QStringLiteral("login"));
        rule[model::rule::network] = QString();
        rule[model::rule::isLogin] = true;
        rule[model::rule::action] = Rule::notChosen;
        rule[model::rule::changeAction] = Rule::notChosen;
        return rule;
    }
    static void fill(ManagedObject &object, const QVariantMap &values)
    {
        for (auto value = values.begin(); value != values.end(); ++value) {
            object.setValue(value.key(), value.value());
        }
    }
    /// A rule that is in the file, whatever the program has open.
    void saveRule(const QVariantMap &values)
    {
        const auto opened =
            ManagedObjectContext::open(quillonModel(), recordsPath(), machine.scheduler);
        ASSERT_TRUE(opened);
        ManagedObjectContext &records = *opened.value();
        fill(*records.insertNewObject(model::Rule), values);
        ASSERT_FALSE(records.save());
    }
    /// A rule that the program itself got.
    ManagedObjectPtr insertRule(const QVariantMap &values)
    {
        const ManagedObjectPtr rule = context().insertNewObject(model::Rule);
        fill(*rule, values);
        context().processPendingChanges();
        return rule;
    }
    ManagedObjectContext &context() { return features().history.store.managedObjectContext(); }
    ManagedObjectList history()
    {
        const auto records = context().fetch({model::Connection, {}, {}});
        return records ? records.value() : ManagedObjectList();
    }

    QVariantMap deviceRecord(const QString &device) const
    {
        return machine.settings.getDictionary(keys::deviceDict).value(device).toMap();
    }
    void setDeviceRecord(const QString &device, const QString &key, const QVariant &value)
    {
        QVariantMap table = machine.settings.getDictionary(keys::deviceDict);
        QVariantMap record = table.value(device).toMap();
        record[key] = value;
        table[device] = record;
        machine.settings.set(keys::deviceDict, table);
    }
    bool isChanged(const QString &device) const
    {
        return machine.host.addressOf(device) != factory.value(device);
    }

    const QString enp1s0 = QStringLiteral("enp1s0");
    const QString enp2s0 = QStringLiteral("enp2s0");
    FakePlatform machine;
    const QHash<QString, QString> factory{
        {enp1s0, machine.host.addressOf(enp1s0)}, {enp2s0, machine.host.addressOf(enp2s0)}};
    mutable std::optional<QuillonAppDelegate> program;
};

} // namespace quillon::test
