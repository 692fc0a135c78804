// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/QuillonModel.h"

namespace quillon {

const Model &quillonModel()
{
    using enum AttributeType;
    static const Model quillon{
        QStringLiteral("Quillon"), {
                                       Entity(model::Rule,
                                           {
                                               {model::rule::action, Integer16},
                                               {model::rule::active, Boolean},
                                               {model::rule::address, String},
                                               {model::rule::changeAction, Integer16},
                                               {model::rule::device, String},
                                               {model::rule::enabled, Boolean},
                                               {model::rule::isLogin, Boolean},
                                               {model::rule::name, String},
                                               {model::rule::network, String},
                                               {model::rule::ssid, String},
                                               {model::rule::ssidDefined, Boolean},
                                               {model::rule::timerMins, Integer16},
                                               {model::rule::vendor, String},
                                           }),
                                       Entity(model::Connection,
                                           {
                                               {model::connection::date, Date},
                                               {model::connection::device, String},
                                               {model::connection::interface, String},
                                               {model::connection::address, String},
                                               {model::connection::ssid, String},
                                               {model::connection::bssid, String},
                                               {model::connection::notes, String},
                                           }),
                                   }};
    return quillon;
}

} // namespace quillon
