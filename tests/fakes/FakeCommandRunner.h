// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CommandRunner.h"

#include <QMap>
#include <QStringList>

namespace quillon::test {

/// A shell that knows a few commands; every other one prints nothing, as a missing program does.
class FakeCommandRunner : public CommandRunner
{
public:
    QString run(const QString &command) override
    {
        m_journal << command;
        return m_outputs.value(command);
    }

    void teach(const QString &command, const QString &output) { m_outputs[command] = output; }
    /// The commands that were run, in order.
    const QStringList &journal() const { return m_journal; }

private:
    QMap<QString, QString> m_outputs;
    QStringList m_journal;
};

} // namespace quillon::test
