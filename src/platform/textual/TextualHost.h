// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NetworkHost.h"

namespace quillon {

class CommandRunner;

/// The network interfaces of a system that only has the two commands "networksetup" and "ifconfig":
/// their texts are parsed. Device names are those of such a system, en0 to en9 and bridge0 to
/// bridge9.
class TextualHost : public NetworkHost
{
public:
    explicit TextualHost(CommandRunner &commands);

    std::optional<QList<PortRecord>> ports() override;
    /// A name that a shell would not take as one plain word is not asked for.
    InterfaceInfo info(const QString &device) override;

private:
    CommandRunner &m_commands;
};

} // namespace quillon
