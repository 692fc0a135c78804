// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/RecordsFile.h"

#include "networks/SpecialNetworks.h"
#include "platform/qt/QtScheduler.h"
#include "rules/Rule.h"
#include "rules/RuleActions.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

QVariantMap attributes(const ManagedObject &object)
{
    QVariantMap values;
    for (const Attribute &attribute : object.entity().attributes()) {
        values.insert(attribute.name, object.value(attribute.name));
    }
    return values;
}

QList<QVariantMap> saved(const QString &path, const QString &entity)
{
    QtScheduler scheduler;
    const auto opened = ManagedObjectContext::open(quillonModel(), path, scheduler);
    if (!opened) {
        return {};
    }
    QList<QVariantMap> records;
    const auto fetched = opened.value()->fetch({entity, {}, {}});
    for (const ManagedObjectPtr &object : fetched ? fetched.value() : ManagedObjectList()) {
        records.append(attributes(*object));
    }
    return records;
}

} // namespace

QVariantMap randomOnceRule(const QString &device)
{
    return {
        {model::rule::device, device},
        {model::rule::name, u"New address for %1"_s.arg(device)},
        {model::rule::network, anyNetwork},
        {model::rule::enabled, true},
        {model::rule::isLogin, false},
        {model::rule::action, Rule::changeAddress},
        {model::rule::changeAction, Rule::once},
        {model::rule::address, randomAddressTitle()},
        {model::rule::vendor, QString()},
    };
}

QVariantMap randomEveryRule(const QString &device, int minutes)
{
    QVariantMap rule = randomOnceRule(device);
    rule[model::rule::changeAction] = Rule::every;
    rule[model::rule::timerMins] = minutes;
    return rule;
}

QVariantMap randomLoginRule(const QString &device)
{
    QVariantMap rule = randomOnceRule(device);
    rule[model::rule::network] = QString();
    rule[model::rule::isLogin] = true;
    rule[model::rule::action] = Rule::notChosen;
    rule[model::rule::changeAction] = Rule::notChosen;
    return rule;
}

bool addRule(const QString &path, const QVariantMap &values)
{
    QtScheduler scheduler;
    const auto opened = ManagedObjectContext::open(quillonModel(), path, scheduler);
    if (!opened) {
        return false;
    }
    ManagedObjectContext &context = *opened.value();
    const ManagedObjectPtr rule = context.insertNewObject(model::Rule);
    for (auto value = values.begin(); value != values.end(); ++value) {
        rule->setValue(value.key(), value.value());
    }
    return !context.save();
}

QList<QVariantMap> savedRules(const QString &path)
{
    return saved(path, model::Rule);
}

QList<QVariantMap> savedHistory(const QString &path)
{
    return saved(path, model::Connection);
}

} // namespace quillon::test
