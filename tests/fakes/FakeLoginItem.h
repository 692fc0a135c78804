// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/desktop/LoginItem.h"

#include <QStringList>

#include <utility>

namespace quillon::test {

/// A desktop that starts programs at login. It keeps one entry, which others may change.
class FakeLoginItem : public LoginItem
{
public:
    explicit FakeLoginItem(Scheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    std::optional<Program> program() const override { return installed; }
    bool setEnabled(const QString &identifier, bool enabled) override
    {
        journal.append(identifier + (enabled ? QStringLiteral(" on") : QStringLiteral(" off")));
        if (isReadOnly || current == Entry::Foreign) {
            return false;
        }
        if (!enabled) {
            current = Entry::None;
        } else if (current == Entry::None) {
            current = Entry::Ours;
        }
        return enabled == (current == Entry::Ours);
    }
    Entry entry() const override { return current; }
    void findDesktop(std::function<void(Desktop)> reply) override
    {
        m_scheduler.onMain([this, reply = std::move(reply)] { reply(desktop); });
    }

    std::optional<Program> installed = Program{QStringLiteral("com.orvandel.Quillon4Helper"),
        QUrl(QStringLiteral("file:///usr/libexec/quillon4/QuillonHelper"))};
    Entry current = Entry::None;
    Desktop desktop = Desktop::StartsPrograms;
    bool isReadOnly = false;
    QStringList journal; ///< what was asked: "IDENTIFIER on", "IDENTIFIER off"

private:
    Scheduler &m_scheduler;
};

} // namespace quillon::test
