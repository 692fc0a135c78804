// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "store/file/RecordFile.h"
#include "store/graph/FetchedRecords.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <QTemporaryDir>
#include <QUndoStack>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

/// A record file in a folder of its own, opened as one program opens it; another() is a second
/// program on the same file.
class RecordsTest : public ::testing::Test
{
protected:
    struct Program
    {
        explicit Program(const QString &path)
        {
            auto loaded = ManagedObjectContext::open(quillonModel(), path, scheduler);
            if (!loaded) {
                ADD_FAILURE() << loaded.error().message.toStdString();
                return;
            }
            owned = std::move(loaded.value());
        }
        ManagedObjectContext &context() const { return *owned; }

        FakeScheduler scheduler;
        std::unique_ptr<ManagedObjectContext> owned;
    };

    Program &program()
    {
        if (!m_program) {
            m_program = std::make_unique<Program>(path);
        }
        return *m_program;
    }
    ManagedObjectContext &context() { return program().context(); }
    std::unique_ptr<Program> another() const { return std::make_unique<Program>(path); }
    void endTurn() { program().scheduler.runPending(); }
    void save()
    {
        const auto error = context().save();
        EXPECT_FALSE(error) << error->message.toStdString();
    }
    /// Unsaved changes are lost.
    void quit() { m_program.reset(); }

    ManagedObjectPtr rule(const QString &name)
    {
        auto object = context().insertNewObject(model::Rule);
        object->setValue(model::rule::name, name);
        return object;
    }
    static QString nameOf(const ManagedObjectPtr &object)
    {
        return object ? object->value(model::rule::name).toString() : QStringLiteral("(none)");
    }
    static QStringList names(const ManagedObjectList &objects)
    {
        QStringList all;
        for (const auto &object : objects) {
            all << nameOf(object);
        }
        return all;
    }
    static QStringList names(ManagedObjectContext &of, const FetchRequest &request)
    {
        const auto objects = of.fetch(request);
        return objects ? names(objects.value()) : QStringList(objects.error().message);
    }
    QStringList names(const FetchRequest &request = {model::Rule, {}, {}})
    {
        return names(context(), request);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("Quillon.sqlite"));

private:
    std::unique_ptr<Program> m_program;
};

} // namespace quillon::test
