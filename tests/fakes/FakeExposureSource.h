// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "platform/ExposureSource.h"

#include <QStringList>

#include <utility>

namespace quillon::test {

/// Says the same of each interface.
class FakeExposureSource : public ExposureSource
{
public:
    explicit FakeExposureSource(FakeScheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    void read(const QString &device, Reply reply) override
    {
        asked.append(device);
        m_scheduler.onMain([this, reply = std::move(reply)] { reply(facts); });
    }

    ExposureFacts facts;
    QStringList asked; ///< the interfaces that it was asked about, in order

private:
    FakeScheduler &m_scheduler;
};

} // namespace quillon::test
