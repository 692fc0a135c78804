// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/Administrator.h"

#include <QDir>
#include <QFile>

#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

constexpr auto user = "quillon";
constexpr int patience = 120'000; // milliseconds
const QString outputPath = u"/tmp/administrator.out"_s;
const QString endedPath = u"/tmp/administrator.ended"_s;
const QByteArray endMark = "that was all: ";

// The process's own descriptors and memory stay readable to it.
bool becomeUser()
{
    const passwd *const entry = getpwnam(user);
    if (entry == nullptr || initgroups(user, entry->pw_gid) != 0 || setgid(entry->pw_gid) != 0 ||
        setuid(entry->pw_uid) != 0) {
        return false;
    }
    qputenv("HOME", entry->pw_dir);
    qputenv("USER", user);
    qputenv("LOGNAME", user);
    return prctl(PR_SET_DUMPABLE, 1) == 0 && QDir::setCurrent(QDir::homePath());
}

Administrator *const instance = new Administrator;
const auto *const registered = ::testing::AddGlobalTestEnvironment(instance);

} // namespace

Administrator &administrator()
{
    return *instance;
}

void Administrator::SetUp()
{
    ASSERT_EQ(geteuid(), 0U) << "start it in the sandbox: tools/sandbox --root";
    m_shell.setProcessChannelMode(QProcess::MergedChannels);
    m_shell.start(u"/bin/bash"_s, QStringList());
    ASSERT_TRUE(m_shell.waitForStarted());
    ASSERT_TRUE(becomeUser());
}

void Administrator::TearDown()
{
    // It is root's: it ends by itself, it could not be killed.
    m_shell.closeWriteChannel();
    m_shell.waitForFinished();
}

QByteArray Administrator::run(const QString &script)
{
    m_shell.write("( set -e; " + script.toUtf8() + "\n) </dev/null; echo \"" + endMark + "$?\"\n");
    QByteArray output;
    for (;;) {
        while (m_shell.canReadLine()) {
            const QByteArray line = m_shell.readLine();
            if (line.startsWith(endMark)) {
                EXPECT_EQ(line.mid(endMark.size()).trimmed(), "0") << qPrintable(script) << ":\n"
                                                                   << output.constData();
                return output;
            }
            output += line;
        }
        if (!m_shell.waitForReadyRead(patience)) {
            ADD_FAILURE() << "no end of " << qPrintable(script) << "\n" << output.constData();
            return output;
        }
    }
}

void Administrator::start(const QString &script)
{
    // What an earlier one left must be gone before anybody looks.
    run(u"rm -f %2; ( ( set -e; %3\n) >%1 2>&1; echo $? >%2.new; mv %2.new %2 ) &"_s.arg(
        outputPath, endedPath, script));
}

bool Administrator::hasEnded() const
{
    return QFile::exists(endedPath);
}

QByteArray Administrator::output() const
{
    QFile ended(endedPath);
    QFile output(outputPath);
    if (!ended.open(QIODevice::ReadOnly) || !output.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "it has not ended";
        return {};
    }
    const QByteArray text = output.readAll();
    EXPECT_EQ(ended.readAll().trimmed(), "0") << text.constData();
    return text;
}

} // namespace quillon::test
