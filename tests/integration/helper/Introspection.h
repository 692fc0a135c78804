// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>
#include <string>
#include <vector>

namespace quillon::test {

/// The members of one interface with their arguments, sorted by name, one a line. `xml` in the
/// D-Bus introspection format.
inline std::vector<std::string> membersOf(const std::string &interface, const QByteArray &xml)
{
    std::vector<std::string> members;
    bool ours = false;
    QXmlStreamReader reader{xml};
    const auto attribute = [&reader](const char *name) {
        return reader.attributes().value(QLatin1String{name}).toString().toStdString();
    };
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            continue;
        }
        const auto element = reader.name().toString();
        if (element == QLatin1String{"interface"}) {
            ours = attribute("name") == interface;
        } else if (ours && element == QLatin1String{"method"}) {
            members.push_back(attribute("name"));
        } else if (ours && element == QLatin1String{"arg"} && !members.empty()) {
            members.back() +=
                " " + attribute("direction") + " " + attribute("type") + " " + attribute("name");
        } else if (ours && element != QLatin1String{"annotation"}) {
            members.push_back("unexpected " + element.toStdString());
        }
    }
    std::sort(members.begin(), members.end());
    return members;
}

/// The members that our description of the interface has.
inline std::vector<std::string> documentedMembersOf(const std::string &interface)
{
    QFile file{QStringLiteral(QUILLON_CONTRACT "/") + QString::fromStdString(interface) +
               QStringLiteral(".xml")};
    return file.open(QIODevice::ReadOnly) ? membersOf(interface, file.readAll())
                                          : std::vector<std::string>{};
}

} // namespace quillon::test
