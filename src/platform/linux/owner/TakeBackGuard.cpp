// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/TakeBackGuard.h"

#include "base/Log.h"
#include "platform/linux/owner/TakingBack.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace quillon {

namespace {

constexpr char option[] = "--take-back";

/// Whoever started us has died, or needs us no more.
bool isLeft()
{
    std::array<char, 64> ignored{};
    return read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0;
}

} // namespace

TakeBackGuard::TakeBackGuard(const QStringList &command, const QString &device)
{
    if (command.isEmpty()) {
        return;
    }
    m_process = new QProcess;
    m_process->setProcessChannelMode(QProcess::ForwardedChannels);
    // What ends a terminal's or a session's programs must not end both of us.
    m_process->setChildProcessModifier([] { setsid(); });
    QObject::connect(m_process, &QProcess::errorOccurred, m_process, [](QProcess::ProcessError) {
        qCWarning(logPlatform, "Nobody guards the interface that was let go");
    });
    m_process->start(command.first(), command.mid(1) << device);
}

TakeBackGuard::~TakeBackGuard()
{
    if (m_process != nullptr) {
        m_process->disconnect();
        QObject::connect(m_process, &QProcess::finished, m_process, &QObject::deleteLater);
        m_process->closeWriteChannel();
    }
}

QStringList TakeBackGuard::ownCommand()
{
    return {QCoreApplication::applicationFilePath(), QLatin1String(option)};
}

std::optional<QString> TakeBackGuard::guardedDevice(int argc, char **argv)
{
    const bool isGuard = argc == 3 && std::strcmp(argv[1], option) == 0;
    return isGuard ? std::optional(QString::fromLocal8Bit(argv[2])) : std::nullopt;
}

int TakeBackGuard::standGuard(const QString &device, Scheduler &scheduler)
{
    // At the end of a session everybody is asked to go; this one goes when it has done its work.
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, SIG_IGN);
    }
    NetworkManager networkManager(QDBusConnection::systemBus());
    std::optional<TakingBack> takingBack;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
        if (isLeft()) {
            input.setEnabled(false);
            takingBack.emplace(networkManager, scheduler, device,
                [](bool isInTime) { QCoreApplication::exit(isInTime ? 0 : 1); });
        }
    });
    return QCoreApplication::exec();
}

} // namespace quillon
