// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "KillTrial.h"

#include "Batches.h"
#include "RecordsOnDisk.h"
#include "fakes/FakeScheduler.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// Of so many writers one is killed while it opens the file, and one file is checked and closed.
constexpr int oneInOpening = 8;
constexpr int oneInChecked = 3;
/// A file is opened in this time, and a dozen saves take place in the other.
constexpr int longestOpening = 3'000; // microseconds
constexpr int longestLife = 50'000;

} // namespace

KillTrial::KillTrial(QString path, unsigned seed)
    : m_path(std::move(path))
    , m_random(seed)
{
}

int KillTrial::random(int below)
{
    return std::uniform_int_distribution(0, below - 1)(m_random);
}

void KillTrial::killOneWriter()
{
    const bool whileOpening = random(oneInOpening) == 0;
    int report[2] = {};
    if (::pipe(report) != 0) {
        std::perror("pipe");
        std::_Exit(2);
    }
    const pid_t writer = ::fork();
    if (writer == 0) {
        ::close(report[0]);
        write(m_path, report[1]);
    }
    ::close(report[1]);
    const auto next = [&report](Message &message) {
        return ::read(report[0], &message, sizeof message) == ssize_t(sizeof message);
    };
    Message message;
    bool isOpen = false;
    if (!whileOpening && next(message)) {
        take(message);
        isOpen = true;
    }
    std::this_thread::sleep_for(
        std::chrono::microseconds(random(whileOpening ? longestOpening : longestLife)));
    ::kill(writer, SIGKILL);
    int status = 0;
    ::waitpid(writer, &status, 0);
    if (!WIFSIGNALED(status)) {
        m_faults << u"A writer ended by itself after batch %1"_s.arg(m_saved);
    }
    while (next(message)) {
        take(message);
        isOpen = true;
    }
    ::close(report[0]);
    ++m_counts.kills;
    m_counts.whileOpening += isOpen ? 0 : 1;
    m_counts.duringSave += m_begun > m_saved && isOpen ? 1 : 0;
    if (random(oneInChecked) == 0) {
        check();
    }
}

void KillTrial::write(const QString &path, int report)
{
    FakeScheduler scheduler;
    auto opened = openedContext(path, scheduler);
    if (!opened) {
        std::fprintf(stderr, "not opened: %s\n", qUtf8Printable(opened.error().message));
        tell(report, Message::Kind::Failed, 0);
        std::_Exit(1);
    }
    ManagedObjectContext &context = *opened.value();
    Batches batches(context);
    qint64 last = batches.last();
    const bool whole = last >= 0 && batches.found() == Batches::expected(last);
    tell(report, whole ? Message::Kind::Found : Message::Kind::Failed, last);
    while (whole) {
        batches.change(++last);
        tell(report, Message::Kind::Begun, last);
        if (const auto error = context.save()) {
            std::fprintf(stderr, "not saved: %s\n", qUtf8Printable(error->message));
            tell(report, Message::Kind::Failed, last);
            break;
        }
        tell(report, Message::Kind::Saved, last);
        scheduler.runPending();
    }
    std::_Exit(1);
}

void KillTrial::tell(int report, Message::Kind kind, qint64 batch)
{
    const Message message{kind, batch};
    if (::write(report, &message, sizeof message) != ssize_t(sizeof message)) {
        std::_Exit(1);
    }
}

void KillTrial::take(const Message &message)
{
    switch (message.kind) {
    case Message::Kind::Found:
        settle(message.batch);
        break;
    case Message::Kind::Begun:
        m_begun = message.batch;
        break;
    case Message::Kind::Saved:
        m_saved = message.batch;
        ++m_counts.savesReported;
        break;
    case Message::Kind::Failed:
        m_faults
            << u"A writer failed at batch %1, after %2 was saved"_s.arg(message.batch).arg(m_saved);
        break;
    }
}

void KillTrial::settle(qint64 found)
{
    if (found != m_saved && found != m_begun) {
        m_faults << u"Batch %1 was reported as saved, and %2 begun; the file has %3"_s.arg(m_saved)
                        .arg(m_begun)
                        .arg(found);
    }
    if (m_begun > m_saved) {
        m_counts.complete += found == m_begun ? 1 : 0;
        m_counts.undone += found == m_saved ? 1 : 0;
    }
    m_saved = m_begun = found;
}

void KillTrial::check()
{
    {
        FakeScheduler scheduler;
        auto opened = openedContext(m_path, scheduler);
        if (!opened) {
            m_faults << u"Not opened: "_s + opened.error().message;
            return;
        }
        Batches batches(*opened.value());
        const qint64 last = batches.last();
        if (last < 0 || batches.found() != Batches::expected(last)) {
            m_faults << u"The records are not those of batch %1"_s.arg(last);
        }
        settle(last);
    }
    if (const std::string answer = integrityOf(m_path); answer != "ok") {
        m_faults << u"integrity_check: "_s + QString::fromStdString(answer);
    }
}

} // namespace quillon::test
