// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/RunningApplications.h"

#include <QSet>

namespace quillon::test {

class FakeRunningApplications : public RunningApplications
{
public:
    QSet<QString> running;

    bool isRunning(const QString &identifier) override { return running.contains(identifier); }
};

} // namespace quillon::test
