// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "platform/qt/settings/PlistSettingsStore.h"
#include "platform/qt/settings/PropertyListFile.h"
#include "platform/qt/settings/XmlPropertyList.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace quillon::test {

/// Turns the real event loop, in which the kernel's news of files arrive, and whatever `between`
/// turns, until `condition` holds; false when it does not within two minutes, which only a hang
/// reaches.
inline bool holdsSoon(
    const std::function<bool()> &condition, const std::function<void()> &between = [] {})
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.elapsed() > 120'000) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        between();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

/// A settings file in a folder of its own, and a store on it whose clock has hands: also what it
/// waits for passes at once.
class SettingsFileTest : public ::testing::Test
{
protected:
    void openStore()
    {
        store = std::make_unique<PlistSettingsStore>(
            path, scheduler,
            [this](const SettingsProblem &problem) { problems.push_back(problem); },
            [this](std::chrono::milliseconds time) {
                waited += time;
                scheduler.pass(time);
                if (meanwhile) {
                    meanwhile();
                }
            });
        scheduler.runPending();
    }
    void reopenStore()
    {
        store.reset();
        openStore();
    }

    static bool write(const QString &file, const QByteArray &bytes)
    {
        QFile out(file);
        return out.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
               out.write(bytes) == bytes.size();
    }
    static QByteArray read(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    /// What the file holds; empty when it is no property list.
    QVariantMap content() const
    {
        const Result<QVariantMap> values = readPropertyListFile(path);
        return values ? values.value() : QVariantMap();
    }
    /// Another program replaces the file's content atomically.
    void replacedByAnother(const QVariantMap &values)
    {
        ASSERT_FALSE(replaceFileContent(path, xmlPropertyList(values)).has_value());
    }
    /// The files beside the settings file, by name.
    QStringList others() const
    {
        QStringList names =
            QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
        names.removeAll(QFileInfo(path).fileName());
        return names;
    }
    bool problemIs(SettingsProblem::Kind kind) const
    {
        return problems.size() == 1 && problems.front().kind == kind &&
               problems.front().path == path;
    }
    bool storeSoonHas(const QString &key, const QVariant &value)
    {
        return holdsSoon(
            [&] { return store->get(key) == value; }, [this] { scheduler.runPending(); });
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("com.orvandel.Quillon4.plist"));
    FakeScheduler scheduler;
    std::vector<SettingsProblem> problems;
    std::chrono::milliseconds waited{0}; ///< by flush() and the like, for the file to be whole
    std::function<void()> meanwhile;     ///< what others do each time that it waits
    std::unique_ptr<PlistSettingsStore> store;
};

} // namespace quillon::test
