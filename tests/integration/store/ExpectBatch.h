// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Batches.h"
#include "RecordsOnDisk.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

/// The file at `path`, opened by somebody else, is that of batch `last`, and sound.
inline void expectBatch(const QString &path, qint64 last)
{
    FakeScheduler another;
    auto opened = openedContext(path, another);
    ASSERT_TRUE(opened) << opened.error().message.toStdString();
    Batches batches(*opened.value());
    EXPECT_EQ(batches.last(), last);
    EXPECT_EQ(batches.found(), Batches::expected(last));
    EXPECT_EQ(integrityOf(path), "ok");
}

} // namespace quillon::test
