// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/RuleFormModel.h"

#include <QString>

namespace quillon {

/// A random address of `vendor` as saved addresses are written: 17 characters, lower case. "" when
/// none can be made.
QString newAddress(const RandomAddress &random, const QString &device, const QString &vendor);

/// What an address that is made in the form is called: as the network that it is for, the rule, or
/// the interface.
QString nameForNewAddress(const RuleFormModel::State &form);
/// Saves the address; its name is `name`, with a suffix where another address has that.
void saveNewAddress(SettingsStore &settings, const QString &address, const QString &name);

} // namespace quillon
