// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudPassphrase.h"

#include <QList>

#include <utility>

namespace quillon::test {

/// Changes the passphrase when the test says so.
class FakeCloudPassphrase : public CloudPassphrase
{
public:
    Step step() const override { return m_step; }
    void begin(const Wanted &wanted) override
    {
        attempts.append(wanted);
        goTo(Step::Reading);
    }
    bool cancel() override
    {
        if (m_step == Step::Writing || m_step == Step::Keeping) {
            return false;
        }
        ++cancelled;
        goTo(Step::None);
        return true;
    }

    void goTo(Step step)
    {
        if (std::exchange(m_step, step) != step) {
            Q_EMIT stepChanged();
        }
    }
    void fail(const Problem &problem)
    {
        goTo(Step::None);
        Q_EMIT failed(problem);
    }
    void succeed()
    {
        goTo(Step::None);
        Q_EMIT changed();
    }
    bool isUnderWay() const { return m_step != Step::None; }

    QList<Wanted> attempts;
    int cancelled = 0;

private:
    Step m_step = Step::None;
};

} // namespace quillon::test
