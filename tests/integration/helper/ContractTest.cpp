// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/helper/BusClient.h"

#include <QFile>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using test::BusClient;

/// The methods of our interface with their arguments, in their order, one a line.
std::vector<std::string> methodsIn(const QByteArray &xml)
{
    std::vector<std::string> methods;
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
            ours = attribute("name") == contract::helperInterface;
        } else if (ours && element == QLatin1String{"method"}) {
            methods.push_back(attribute("name"));
        } else if (ours && element == QLatin1String{"arg"} && !methods.empty()) {
            methods.back() +=
                " " + attribute("direction") + " " + attribute("type") + " " + attribute("name");
        } else if (ours && element != QLatin1String{"annotation"}) {
            methods.push_back("unexpected " + element.toStdString());
        }
    }
    std::sort(methods.begin(), methods.end());
    return methods;
}

QByteArray introspected()
{
    BusClient root{"root"};
    const auto xml = root.call(contract::helperName, contract::helperPath,
        "org.freedesktop.DBus.Introspectable", "Introspect");
    return QByteArray::fromStdString(xml);
}

TEST(TheContract, isWhatTheHelperOffers)
{
    QFile file{QStringLiteral(QUILLON_CONTRACT "/com.orvandel.Quillon4HelperTool.xml")};
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto documented = methodsIn(file.readAll());
    EXPECT_EQ(documented.size(), 4U);
    EXPECT_EQ(methodsIn(introspected()), documented);
}

TEST(TheVersion, isToldToEverybody)
{
    EXPECT_EQ(BusClient{"mallory"}.version(), "2.0");
}

TEST(TheEndpoint, isTheHelpersUniqueName)
{
    BusClient mallory{"mallory"};
    const auto endpoint = mallory.endpoint();
    ASSERT_EQ(endpoint.substr(0, 1), ":");
    EXPECT_EQ(mallory.processOf(endpoint), mallory.processOf(contract::helperName));
    EXPECT_NE(endpoint, mallory.uniqueName());
}

} // namespace
} // namespace quillon
