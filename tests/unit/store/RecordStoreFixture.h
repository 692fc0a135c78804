// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

/// A record store in a folder of its own, with a clock that has hands.
class RecordStoreTest : public ::testing::Test
{
protected:
    ManagedObjectContext &context() { return store.managedObjectContext(); }
    ManagedObjectPtr insertRule(const QString &name)
    {
        auto rule = context().insertNewObject(model::Rule);
        rule->setValue(model::rule::name, name);
        return rule;
    }
    /// The end of this turn of the main loop, and everything that it asks for.
    void endTurn() { scheduler.runPending(); }
    /// The names of all rules as the file has them, in the order of creation.
    QStringList savedNames() const
    {
        FakeScheduler another;
        auto opened = ManagedObjectContext::open(quillonModel(), path, another);
        if (!opened) {
            return {opened.error().message};
        }
        return namesIn(*opened.value());
    }
    static QStringList namesIn(ManagedObjectContext &context)
    {
        const auto rules = context.fetch({model::Rule, {}, {}});
        QStringList names;
        for (const auto &rule : rules ? rules.value() : ManagedObjectList()) {
            names << rule->value(model::rule::name).toString();
        }
        return names;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("Quillon.sqlite"));
    FakeScheduler scheduler;
    RecordStore store{scheduler, folder.path()};
};

} // namespace quillon::test
