// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Entity.h"

namespace quillon {

/// The model "Quillon": rules and history records.
const Model &quillonModel();

/// The model's entities, by name, and their attributes.
namespace model {

inline const QString Rule = QStringLiteral("Rule");
inline const QString Connection = QStringLiteral("Connection");

} // namespace model

#define QUILLON_ATTRIBUTE(type, name) inline const AttributeOf<type> name(QStringLiteral(#name))
namespace model::rule {
QUILLON_ATTRIBUTE(int, action);
QUILLON_ATTRIBUTE(bool, active);
QUILLON_ATTRIBUTE(QString, address);
QUILLON_ATTRIBUTE(int, changeAction);
QUILLON_ATTRIBUTE(QString, device);
QUILLON_ATTRIBUTE(bool, enabled);
QUILLON_ATTRIBUTE(bool, isLogin);
QUILLON_ATTRIBUTE(QString, name);
QUILLON_ATTRIBUTE(QString, network);
QUILLON_ATTRIBUTE(QString, ssid);
QUILLON_ATTRIBUTE(bool, ssidDefined);
QUILLON_ATTRIBUTE(int, timerMins);
QUILLON_ATTRIBUTE(QString, vendor);
} // namespace model::rule

namespace model::connection {
QUILLON_ATTRIBUTE(QDateTime, date);
QUILLON_ATTRIBUTE(QString, device);
QUILLON_ATTRIBUTE(QString, interface);
QUILLON_ATTRIBUTE(QString, address);
QUILLON_ATTRIBUTE(QString, ssid);
QUILLON_ATTRIBUTE(QString, bssid);
QUILLON_ATTRIBUTE(QString, notes);
} // namespace model::connection
#undef QUILLON_ATTRIBUTE

} // namespace quillon
