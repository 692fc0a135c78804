// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/WiFiSecurity.h"

#include "unit/platform/linux/wifi/ElementBytes.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

using S = WiFiInterface;

constexpr int frameProtectionCapable = 0x80;
constexpr int frameProtectionRequired = 0x40;

int securityOf(const QByteArray &elements, std::optional<bool> privacy = true)
{
    return security(informationElements(spanOf(ssidElement("net") + elements)), privacy);
}

int rsn(const QList<int> &keys, int capabilities = 0)
{
    return securityOf(Rsn{.keys = keys, .capabilities = capabilities}.bytes());
}

QByteArray oweTransition()
{
    return element(221, QByteArray::fromHex("506f9a1c"));
}

} // namespace

TEST(WiFiSecurity, WithoutElementsThePrivacyBitDecides)
{
    EXPECT_EQ(securityOf({}, false), S::None);
    EXPECT_EQ(securityOf({}, true), S::WEP);
    EXPECT_EQ(securityOf({}, std::nullopt), S::UnknownSecurity);
}

TEST(WiFiSecurity, WhatIsNotCertainToBeOpenIsNotOpen)
{
    EXPECT_EQ(security(informationElements({}), false), S::UnknownSecurity) << "no elements at all";
    const QByteArray cut = ssidElement("net") + QByteArray::fromHex("3014");
    EXPECT_EQ(security(informationElements(spanOf(cut)), false), S::UnknownSecurity);
    EXPECT_EQ(securityOf(element(68, {}), true), S::UnknownSecurity) << "WAPI";
    EXPECT_EQ(securityOf(element(221, QByteArray::fromHex("506f9a12")), true), S::UnknownSecurity);
    EXPECT_EQ(securityOf(element(48, {}), false), S::UnknownSecurity) << "an empty RSN element";
    EXPECT_EQ(securityOf(Rsn{.keys = {99}}.bytes(), false), S::UnknownSecurity);
}

TEST(WiFiSecurity, PersonalGenerations)
{
    EXPECT_EQ(securityOf(wpaElement({2})), S::WPAPersonal);
    EXPECT_EQ(securityOf(wpaElement({2}) + Rsn{.keys = {2}}.bytes()), S::WPAPersonalMixed);
    for (const int key : {2, 4, 6, 19, 20}) {
        EXPECT_EQ(rsn({key}), S::WPA2Personal) << key;
    }
    EXPECT_EQ(rsn({2, 4, 6}), S::WPA2Personal);
    for (const int key : {8, 9, 24, 25}) {
        EXPECT_EQ(rsn({key}, frameProtectionRequired), S::WPA3Personal) << key;
    }
    EXPECT_EQ(rsn({2, 8}, frameProtectionCapable), S::WPA3Transition);
    EXPECT_EQ(rsn({9, 6}), S::WPA3Transition);
    EXPECT_EQ(securityOf(wpaElement({2}) + Rsn{.keys = {2, 8}}.bytes()), S::WPA3Transition);
}

TEST(WiFiSecurity, PersonalOfNoSingleGeneration)
{
    EXPECT_EQ(securityOf(wpaElement({2}) + Rsn{.keys = {8}}.bytes()), S::Personal);
    EXPECT_EQ(securityOf(wpaElement({2}) + Rsn{.keys = {99}}.bytes()), S::Personal);
    EXPECT_EQ(securityOf(Rsn{.keys = {2}, .version = 2}.bytes()), S::Personal);
    const QByteArray damaged = Rsn{.keys = {2}}.content().chopped(1);
    EXPECT_EQ(securityOf(element(48, damaged)), S::Personal);
    EXPECT_EQ(securityOf(Rsn{.keys = {2}}.bytes() + QByteArray(1, 0)), S::Personal)
        << "what came after is lost, WPA perhaps";
}

TEST(WiFiSecurity, EnterpriseGenerations)
{
    EXPECT_EQ(securityOf(wpaElement({1})), S::WPAEnterprise);
    EXPECT_EQ(securityOf(wpaElement({1}) + Rsn{.keys = {1}}.bytes()), S::WPAEnterpriseMixed);
    for (const int key : {1, 3, 5}) {
        EXPECT_EQ(rsn({key}), S::WPA2Enterprise) << key;
    }
    EXPECT_EQ(rsn({1, 5}, frameProtectionRequired), S::WPA2Enterprise)
        << "WPA2 clients with frame protection may join";
    EXPECT_EQ(rsn({5}, frameProtectionRequired), S::WPA3Enterprise);
    for (const int key : {11, 12, 13, 22, 23}) {
        EXPECT_EQ(rsn({key}, frameProtectionRequired), S::WPA3Enterprise) << key;
    }
    EXPECT_EQ(rsn({5, 12}), S::WPA2Enterprise) << "without the frame protection of WPA3";
    EXPECT_EQ(securityOf(element(48, littleEndian(1))), S::WPA2Enterprise) << "the default";
}

TEST(WiFiSecurity, EnterpriseOfNoSingleGeneration)
{
    for (const int key : {14, 15, 16, 17}) {
        EXPECT_EQ(rsn({key}), S::Enterprise) << key;
    }
    EXPECT_EQ(securityOf(wpaElement({1}) + Rsn{.keys = {99}}.bytes()), S::Enterprise);
    EXPECT_EQ(securityOf(Rsn{.keys = {1}, .version = 9}.bytes()), S::Enterprise);
}

TEST(WiFiSecurity, DynamicWepIsEnterpriseWithTheCiphersOfWep)
{
    EXPECT_EQ(securityOf(wpaElement({1}, {1})), S::DynamicWEP);
    EXPECT_EQ(securityOf(wpaElement({1}, {5})), S::DynamicWEP);
    EXPECT_EQ(securityOf(Rsn{.keys = {1}, .ciphers = {0}, .groupCipher = 5}.bytes()), S::DynamicWEP)
        << "the group's cipher for all";
    EXPECT_EQ(
        securityOf(Rsn{.keys = {1}, .ciphers = {4}, .groupCipher = 1}.bytes()), S::WPA2Enterprise);
    EXPECT_EQ(securityOf(Rsn{.keys = {1}, .ciphers = {1, 4}}.bytes()), S::WPA2Enterprise);
}

TEST(WiFiSecurity, PersonalAndEnterpriseAtOnceCannotBeTold)
{
    EXPECT_EQ(rsn({1, 2}), S::UnknownSecurity);
    EXPECT_EQ(securityOf(wpaElement({2}) + Rsn{.keys = {1}}.bytes()), S::UnknownSecurity);
}

TEST(WiFiSecurity, EncryptionWithoutAPassword)
{
    EXPECT_EQ(rsn({18}, frameProtectionRequired), S::OWE);
    EXPECT_EQ(securityOf(Rsn{.keys = {18}}.bytes() + oweTransition()), S::OWETransition);
    EXPECT_EQ(securityOf(oweTransition(), false), S::None)
        << "the open one of the pair protects nobody";
}

TEST(WiFiSecurity, SuitesOfOtherOrganizationsAreNotTakenForOurs)
{
    const QByteArray foreign =
        QByteArray::fromHex("0100 000fac04 0100 000fac04 0100 aabbcc02 0000");
    EXPECT_EQ(securityOf(element(48, foreign)), S::UnknownSecurity);
    const QByteArray both =
        QByteArray::fromHex("0100 000fac04 0100 000fac04 0200 aabbcc01 000fac02 0000");
    EXPECT_EQ(securityOf(element(48, both)), S::WPA2Personal);
}

} // namespace quillon::test
