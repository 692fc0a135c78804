// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Entity.h"

namespace quillon {

/// The model "Quillon": rules and history records.
const Model &quillonModel();

/// Names of the model's entities and attributes, for whoever reads records without the classes that
/// wrap them.
namespace model {

inline const QString Rule = QStringLiteral("Rule");
inline const QString Connection = QStringLiteral("Connection");

} // namespace model

#define QUILLON_ATTRIBUTE(name) inline const QString name = QStringLiteral(#name)
namespace model::rule {
QUILLON_ATTRIBUTE(action);
QUILLON_ATTRIBUTE(active);
QUILLON_ATTRIBUTE(address);
QUILLON_ATTRIBUTE(changeAction);
QUILLON_ATTRIBUTE(device);
QUILLON_ATTRIBUTE(enabled);
QUILLON_ATTRIBUTE(isLogin);
QUILLON_ATTRIBUTE(name);
QUILLON_ATTRIBUTE(network);
QUILLON_ATTRIBUTE(ssid);
QUILLON_ATTRIBUTE(ssidDefined);
QUILLON_ATTRIBUTE(timerMins);
QUILLON_ATTRIBUTE(vendor);
} // namespace model::rule

namespace model::connection {
QUILLON_ATTRIBUTE(date);
QUILLON_ATTRIBUTE(device);
QUILLON_ATTRIBUTE(interface);
QUILLON_ATTRIBUTE(address);
QUILLON_ATTRIBUTE(ssid);
QUILLON_ATTRIBUTE(bssid);
QUILLON_ATTRIBUTE(notes);
} // namespace model::connection
#undef QUILLON_ATTRIBUTE

} // namespace quillon
