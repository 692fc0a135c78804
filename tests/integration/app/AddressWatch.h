// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/app/Administrator.h"
#include "integration/platform/linux/Waiting.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

namespace quillon::test {

/// Sees every link address that the kernel gives to interfaces from now on, by another program's
/// eyes, however short a time an address lasts.
class AddressWatch
{
public:
    AddressWatch()
    {
        m_monitor.setStandardOutputFile(m_path, QIODevice::Truncate);
        m_monitor.start(QStringLiteral("ip"),
            {QStringLiteral("-o"), QStringLiteral("monitor"), QStringLiteral("link")});
        // It says nothing about being ready: it is once it has seen something.
        EXPECT_TRUE(eventually([this] {
            administrator().run(QStringLiteral("ip link set br0 alias %1").arg(++m_pokes));
            return !text().isEmpty();
        }));
    }
    ~AddressWatch()
    {
        m_monitor.terminate();
        m_monitor.waitForFinished();
    }

    /// The addresses that an interface was seen with, one for each change; the first is the one
    /// before any change, when something else happened to it at that time.
    QStringList addresses(const QString &device)
    {
        catchUp();
        const QRegularExpression line(
            QStringLiteral("^\\d+: %1(?:@\\S+)?:.*link/ether (\\S+)").arg(device),
            QRegularExpression::MultilineOption);
        QStringList seen;
        for (auto match = line.globalMatch(text()); match.hasNext();) {
            const QString address = match.next().captured(1);
            if (seen.isEmpty() || seen.last() != address) {
                seen.append(address);
            }
        }
        return seen;
    }

private:
    /// Waits until it has written what the kernel told before this call: messages keep their order.
    void catchUp()
    {
        const QString mark = QStringLiteral("mtu %1 ").arg(firstMark + ++m_pokes);
        administrator().run(QStringLiteral("ip link set br0 ") + mark);
        EXPECT_TRUE(eventually([&] { return text().contains(mark); }));
    }
    QString text() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    const QString m_path = QStringLiteral("/tmp/link-monitor.txt");
    QProcess m_monitor;
    static constexpr int firstMark = 1300; ///< unlike every other interface's
    int m_pokes = 0;
};

} // namespace quillon::test
