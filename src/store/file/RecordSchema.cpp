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

// What a mirror of the records needs. The triggers note every edit in the transaction that makes
// it, whichever connection that is on: a removal in the background and another program's save as
// well. "columns" has the bit of each attribute that changed, the first attribute's being 1. A
// rule's "active" (bit 1) is never noted: it says what holds on this computer.
constexpr auto version3 = R"(
CREATE TABLE "Mirror" (
    id INTEGER PRIMARY KEY CHECK (id = 1),
    account BLOB,
    isRecording INTEGER NOT NULL,
    isCaughtUp INTEGER NOT NULL,
    isMerging INTEGER NOT NULL
) STRICT;
INSERT INTO "Mirror" VALUES (1, NULL, 0, 0, 0);
CREATE TABLE "MirrorEdit" (
    number INTEGER PRIMARY KEY,
    entity TEXT NOT NULL,
    uuid BLOB NOT NULL,
    kind INTEGER NOT NULL,
    columns INTEGER NOT NULL
) STRICT;
CREATE TABLE "MirrorRecord" (
    entity TEXT NOT NULL,
    uuid BLOB NOT NULL,
    isPresent INTEGER NOT NULL,
    state BLOB NOT NULL,
    PRIMARY KEY (entity, uuid)
) STRICT, WITHOUT ROWID;
CREATE TABLE "MirrorSetting" (
    key TEXT NOT NULL,
    entry TEXT NOT NULL,
    state BLOB NOT NULL,
    PRIMARY KEY (key, entry)
) STRICT, WITHOUT ROWID;
CREATE TABLE "MirrorPending" (
    number INTEGER PRIMARY KEY AUTOINCREMENT,
    changes BLOB NOT NULL
) STRICT;
CREATE TABLE "MirrorOutgoing" (
    name TEXT PRIMARY KEY,
    bytes BLOB NOT NULL
) STRICT;
CREATE TABLE "MirrorProgress" (
    id INTEGER PRIMARY KEY CHECK (id = 1),
    progress BLOB NOT NULL
) STRICT;
CREATE TRIGGER "Rule inserted" AFTER INSERT ON "Rule"
    WHEN (SELECT isRecording AND NOT isMerging FROM "Mirror") BEGIN
    INSERT INTO "MirrorEdit" (entity, uuid, kind, columns) VALUES ('Rule', new.uuid, 0, 0);
END;
CREATE TRIGGER "Rule updated" AFTER UPDATE ON "Rule"
    WHEN (SELECT isRecording AND NOT isMerging FROM "Mirror") BEGIN
    INSERT INTO "MirrorEdit" (entity, uuid, kind, columns)
        SELECT 'Rule', new.uuid, 1, changed FROM (SELECT
        ((old."action" IS NOT new."action") << 0) |
        ((old."address" IS NOT new."address") << 2) |
        ((old."changeAction" IS NOT new."changeAction") << 3) |
        ((old."device" IS NOT new."device") << 4) |
        ((old."enabled" IS NOT new."enabled") << 5) |
        ((old."isLogin" IS NOT new."isLogin") << 6) |
        ((old."name" IS NOT new."name") << 7) |
        ((old."network" IS NOT new."network") << 8) |
        ((old."ssid" IS NOT new."ssid") << 9) |
        ((old."ssidDefined" IS NOT new."ssidDefined") << 10) |
        ((old."timerMins" IS NOT new."timerMins") << 11) |
        ((old."vendor" IS NOT new."vendor") << 12) AS changed)
        WHERE changed <> 0;
END;
CREATE TRIGGER "Rule deleted" AFTER DELETE ON "Rule"
    WHEN (SELECT isRecording AND NOT isMerging FROM "Mirror") BEGIN
    INSERT INTO "MirrorEdit" (entity, uuid, kind, columns) VALUES ('Rule', old.uuid, 2, 0);
END;
CREATE TRIGGER "Connection inserted" AFTER INSERT ON "Connection"
    WHEN (SELECT isRecording AND NOT isMerging FROM "Mirror") BEGIN
    INSERT INTO "MirrorEdit" (entity, uuid, kind, columns) VALUES ('Connection', new.uuid, 0, 0);
END;
CREATE TRIGGER "Connection updated" AFTER UPDATE ON "Connection"
    WHEN (SELECT isRecording AND NOT isMerging FROM "Mirror") BEGIN
    INSERT INTO "MirrorEdit" (entity, uuid, kind, columns)
        SELECT 'Connection', new.uuid, 1, changed FROM (SELECT
        ((old."date" IS NOT new."date") << 0) |
        ((old."device" IS NOT new."device") << 1) |
        ((old."interface" IS NOT new."interface") << 2) |
        ((old."address" IS NOT new."address") << 3) |
        ((old."ssid" IS NOT new."ssid") << 4) |
        ((old."bssid" IS NOT new."bssid") << 5) |
        ((old."notes" IS NOT new."notes") << 6) AS changed)
        WHERE changed <> 0;
END;
CREATE TRIGGER "Connection deleted" AFTER DELETE ON "Connection"
    WHEN (SELECT isRecording AND NOT isMerging FROM "Mirror") BEGIN
    INSERT INTO "MirrorEdit" (entity, uuid, kind, columns) VALUES ('Connection', old.uuid, 2, 0);
END;
)";

} // namespace

const RecordSchema &quillonSchema()
{
    static const RecordSchema schema{{version1, version2, version3}};
    return schema;
}

} // namespace quillon
