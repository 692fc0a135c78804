// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordedDisk.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace quillon::test {

namespace {

constexpr std::size_t sectorSize = 512;

std::string fileName(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

bool byChance(std::mt19937 &random)
{
    return (random() & 1U) != 0;
}

} // namespace

RecordedDisk::RecordedDisk(WatchedFileSystem &fileSystem, Lie lie)
    : m_fileSystem(fileSystem)
    , m_lie(lie)
{
    using enum Step::Kind;
    FileSystemWatch watch;
    watch.opened = [this](const auto &name, bool isNew) {
        const bool isKnown = std::ranges::any_of(
            m_steps, [&](const Step &step) { return step.name == fileName(name); });
        if (isNew || !isKnown) {
            add({Create, fileName(name), 0, {}});
        }
        // A database is made before SQLite sees it, and its name is on the disk then.
        if (!isNew && !isKnown) {
            add({SyncFolder, {}, 0, {}});
        }
    };
    watch.written = [this](const auto &name, std::size_t offset, std::string_view bytes) {
        add({Write, fileName(name), offset, std::string(bytes)});
    };
    watch.truncated = [this](const auto &name, std::size_t size) {
        add({Truncate, fileName(name), size, {}});
    };
    watch.synced = [this](const auto &name) {
        const bool isLie = m_lie == Lie::OfAll || (m_lie == Lie::OfLogs && name.ends_with("-wal"));
        if (!isLie) {
            add({Sync, fileName(name), 0, {}});
        }
    };
    watch.removed = [this](const auto &name) { add({Remove, fileName(name), 0, {}}); };
    watch.folderSynced = [this] {
        if (m_lie != Lie::OfAll) {
            add({SyncFolder, {}, 0, {}});
        }
    };
    watch.hasFastDisk = false;
    m_fileSystem.watch = std::move(watch);
}

RecordedDisk::~RecordedDisk()
{
    m_fileSystem.watch = {};
}

void RecordedDisk::add(Step step)
{
    m_steps.push_back(std::move(step));
}

void RecordedDisk::makeAfterPowerCut(
    std::size_t steps, Arrived arrived, std::mt19937 &random, const QString &folder) const
{
    // A name leads to a content; one that is removed and made again leads to another one.
    using Names = std::map<std::string, std::shared_ptr<Content>>;
    Names current;
    Names certain;
    std::vector<std::pair<std::string, std::shared_ptr<Content>>> uncertain;
    for (std::size_t index = 0; index < steps; ++index) {
        const Step &step = m_steps[index];
        switch (step.kind) {
        case Step::Kind::Create:
            current[step.name] = std::make_shared<Content>();
            uncertain.emplace_back(step.name, current[step.name]);
            break;
        case Step::Kind::Remove:
            current.erase(step.name);
            uncertain.emplace_back(step.name, nullptr);
            break;
        case Step::Kind::Write:
        case Step::Kind::Truncate:
            current.at(step.name)->uncertain.push_back(&step);
            break;
        case Step::Kind::Sync: {
            Content &content = *current.at(step.name);
            for (const Step *const earlier : std::exchange(content.uncertain, {})) {
                apply(*earlier, Arrived::Everything, random, content.certain);
            }
            break;
        }
        case Step::Kind::SyncFolder:
            certain = current;
            uncertain.clear();
            break;
        }
    }
    for (const auto &[name, content] : uncertain) {
        const bool has =
            arrived == Arrived::Everything || (arrived == Arrived::AnyOfIt && byChance(random));
        if (has && content) {
            certain[name] = content;
        } else if (has) {
            certain.erase(name);
        }
    }
    for (const auto &[name, content] : certain) {
        const std::string bytes = afterPowerCut(*content, arrived, random);
        QFile file(QDir(folder).filePath(QString::fromStdString(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())),
            static_cast<qint64>(bytes.size()));
    }
}

std::string RecordedDisk::afterPowerCut(
    const Content &content, Arrived arrived, std::mt19937 &random)
{
    std::string bytes = content.certain;
    for (const Step *const step : content.uncertain) {
        if (arrived == Arrived::Everything || (arrived == Arrived::AnyOfIt && byChance(random))) {
            apply(*step, arrived, random, bytes);
        }
    }
    return bytes;
}

void RecordedDisk::apply(
    const Step &step, Arrived arrived, std::mt19937 &random, std::string &bytes)
{
    if (step.kind == Step::Kind::Truncate) {
        bytes.resize(step.offset);
        return;
    }
    const bool isTorn = arrived == Arrived::AnyOfIt && byChance(random);
    std::size_t from = 0;
    while (from < step.bytes.size()) {
        const std::size_t place = step.offset + from;
        const std::size_t size =
            std::min(sectorSize - place % sectorSize, step.bytes.size() - from);
        if (!isTorn || byChance(random)) {
            bytes.resize(std::max(bytes.size(), place + size));
            bytes.replace(place, size, step.bytes, from, size);
        }
        from += size;
    }
}

} // namespace quillon::test
