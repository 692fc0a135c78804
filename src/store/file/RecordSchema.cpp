// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordSchema.h"

namespace quillon {

namespace {

constexpr auto version1 = R"(
CREATE TABLE "Rule" (
    pk INTEGER PRIMARY KEY AUTOINCREMENT,
    uuid BLOB NOT NULL UNIQUE,
    "action" INTEGER,
    "active" INTEGER,
    "address" TEXT,
    "changeAction" INTEGER,
    "device" TEXT,
    "enabled" INTEGER,
    "isLogin" INTEGER,
    "name" TEXT,
    "network" TEXT,
    "ssid" TEXT,
    "ssidDefined" INTEGER,
    "timerMins" INTEGER,
    "vendor" TEXT
) STRICT;
CREATE TABLE "Connection" (
    pk INTEGER PRIMARY KEY AUTOINCREMENT,
    uuid BLOB NOT NULL UNIQUE,
    "date" INTEGER,
    "device" TEXT,
    "interface" TEXT,
    "address" TEXT,
    "ssid" TEXT,
    "bssid" TEXT,
    "notes" TEXT
) STRICT;
)";

// The history is looked at newest first, and its first page shall not wait for a sort of the rest.
constexpr auto version2 = R"(
CREATE INDEX "Connection by date" ON "Connection" ("date");
)";

} // namespace

const RecordSchema &quillonSchema()
{
    static const RecordSchema schema{{version1, version2}};
    return schema;
}

} // namespace quillon
