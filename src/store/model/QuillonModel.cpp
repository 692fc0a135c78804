// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/QuillonModel.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

Entity ruleEntity()
{
    using namespace model::rule;
    return {model::Rule, {action, active, address, changeAction, device, enabled, isLogin, name,
                             network, ssid, ssidDefined, timerMins, vendor}};
}

Entity connectionEntity()
{
    using namespace model::connection;
    return {model::Connection, {date, device, interface, address, ssid, bssid, notes}};
}

} // namespace

const Model &quillonModel()
{
    static const Model quillon{u"Quillon"_s, {ruleEntity(), connectionEntity()}};
    return quillon;
}

} // namespace quillon
