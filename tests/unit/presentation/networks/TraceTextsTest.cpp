// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/TraceTexts.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;
using Kind = Trace::Kind;
using Lasts = Trace::Lasts;

const QDateTime now(QDate(2026, 11, 4), QTime(15, 0), Qt::LocalTime);

TEST(TraceTexts, HaveALabelForEachKind)
{
    for (int kind = 0; kind <= static_cast<int>(Kind::LoginIdentity); ++kind) {
        EXPECT_FALSE(traceLabel(static_cast<Kind>(kind)).isEmpty()) << kind;
    }
}

TEST(TraceTexts, SayWhatIsShown)
{
    EXPECT_EQ(traceValue({.kind = Kind::DhcpName, .value = u"laptop"_s}), u"laptop"_s);
    EXPECT_EQ(traceValue({.kind = Kind::DhcpName}), u"Not known"_s);
    EXPECT_EQ(traceValue({.kind = Kind::DhcpName, .lasts = Lasts::Always}), u"Not known"_s);
    EXPECT_EQ(traceValue({.kind = Kind::DhcpIdentifier, .lasts = Lasts::NamesHardwareAddress}),
        u"Made from the hardware address"_s);
    EXPECT_EQ(traceValue({.kind = Kind::Duid}), u"Not known"_s);
}

TEST(TraceTexts, SayWhatBecomesOfIt)
{
    const auto hint = [](Lasts lasts) {
        return traceHint({.kind = Kind::Ipv6Address, .value = u"fe80::1"_s, .lasts = lasts}, now);
    };
    QStringList hints;
    for (int lasts = 0; lasts <= static_cast<int>(Lasts::NamesOtherAddress); ++lasts) {
        hints.append(hint(static_cast<Lasts>(lasts)));
        EXPECT_FALSE(hints.last().isEmpty());
    }
    EXPECT_EQ(hints.removeDuplicates(), 0);
    EXPECT_EQ(hint(Lasts::NamesHardwareAddress), u"Gives the hardware address away."_s);
    EXPECT_EQ(traceHint({.kind = Kind::DhcpName}, now), u"Who sets it does not tell."_s);
    EXPECT_EQ(traceHint({.kind = Kind::MoreIpv6Addresses, .value = u"3"_s}, now), QString());
}

TEST(TraceTexts, SayWhatCanBeDone)
{
    Trace trace{.kind = Kind::DhcpName, .value = u"laptop"_s, .lasts = Lasts::Always};
    trace.owner = u"NetworkManager"_s;
    trace.setting = u"a %1 b"_s;
    EXPECT_EQ(traceHint(trace, now),
        u"Stays the same on every network.\nTo show less, in NetworkManager: a %1 b"_s);
    trace.owner.clear();
    EXPECT_TRUE(traceHint(trace, now).endsWith(u"\nTo show less: a %1 b"_s));
}

TEST(TraceTexts, SaySinceWhenItWasKept)
{
    Trace trace{.kind = Kind::Ipv6Address, .value = u"fe80::1"_s, .lasts = Lasts::OnThisNetwork};
    trace.age = 3600s;
    EXPECT_FALSE(traceHint(trace, now).contains("Kept"_L1));
    trace.isKept = true;
    const QLocale locale;
    EXPECT_TRUE(
        traceHint(trace, now).contains(locale.toString(QTime(14, 0), QLocale::ShortFormat)));
    trace.age = 24 * 3600s;
    EXPECT_TRUE(
        traceHint(trace, now).contains(locale.toString(QDate(2026, 11, 3), QLocale::ShortFormat)));
}

} // namespace
} // namespace quillon::test
