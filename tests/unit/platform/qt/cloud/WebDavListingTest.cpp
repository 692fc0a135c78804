// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavListing.h"

#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"

#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QUrl folder(u"https://a.org/dav/m%20x/"_s);

CloudResult<QList<CloudFile>> parsed(const QByteArray &text, qsizetype piece = 1 << 16)
{
    WebDavListing listing(folder);
    for (qsizetype start = 0; start < text.size(); start += piece) {
        if (const std::optional<CloudError> error = listing.add(text.mid(start, piece))) {
            return *error;
        }
    }
    return listing.finish();
}

QByteArray multistatus(const QByteArray &responses)
{
    return R"(<?xml version="1.0"?><D:multistatus xmlns:D="DAV:">)" + responses +
           "</D:multistatus>";
}

QByteArray file(const QByteArray &href, const QByteArray &properties = {})
{
    return "<D:response><D:href>" + href + "</D:href><D:propstat><D:prop>" + properties +
           "</D:prop><D:status>HTTP/1.1 200 OK</D:status></D:propstat></D:response>";
}

QStringList names(const QByteArray &responses)
{
    QStringList found;
    for (const CloudFile &each : valueOf(parsed(multistatus(responses)))) {
        found << each.name;
    }
    return found;
}

const QByteArray usual = multistatus(
    file("/dav/m%20x/", "<D:resourcetype><D:collection/></D:resourcetype>") +
    file("/dav/m%20x/head",
        "<D:getcontentlength>12</D:getcontentlength><D:getetag>\"a&amp;b\"</D:getetag>"));

TEST(WebDavListingTest, AFileHasItsNameSizeAndRevision)
{
    for (const qsizetype piece : {1, 7, 100'000}) {
        const QList<CloudFile> files = valueOf(parsed(usual, piece));
        ASSERT_EQ(files.size(), 1);
        EXPECT_EQ(files.front().name, u"head"_s);
        EXPECT_EQ(files.front().size, 12);
        EXPECT_EQ(files.front().revision, "\"a&b\"");
    }
}

TEST(WebDavListingTest, PrefixesAndOtherNamespacesDoNotMatter)
{
    EXPECT_EQ(valueOf(parsed(R"(<multistatus xmlns="DAV:" xmlns:x="urn:x"><x:extra><href>no</href>
        </x:extra><response><href> /dav/m%20x/head </href><propstat><prop><x:getcontentlength>7
        </x:getcontentlength><getcontentlength> 12 </getcontentlength><x:y><getetag>no</getetag>
        </x:y></prop><status>HTTP/1.1 200 OK</status></propstat></response></multistatus>)"))
                  .value(0)
                  .size,
        12);
    EXPECT_EQ(
        problemIn(parsed("<multistatus><response/></multistatus>")), CloudProblem::NotAnAccount)
        << "without the namespace it is something else";
}

TEST(WebDavListingTest, AnHrefMayBeAPathOrAWholeAddress)
{
    EXPECT_THAT(names(file("/dav/m%20x/a") + file("https://a.org/dav/m%20x/b") +
                      file("http://inside:8080/dav/m%20x/c") + file("/dav/m x/d") +
                      file("//a.org/dav/m%20x/e") + file("/dav//m%20x/%66")),
        ElementsAre(u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s));
}

TEST(WebDavListingTest, WhatIsNoFileOfTheFolderIsLeftOut)
{
    EXPECT_THAT(
        names(file("/dav/m%20x/sub/a") + file("/dav/m%20x/sub%2Fa") + file("/dav/other/a") +
              file("/dav/m%20x/../a") + file("/dav/m%20x/..") + file("/dav/m%20x/") +
              file("/dav/m%20x/%00") + file("/dav/m%20x/a%0Ab") + file("/dav/m%20x/%C3%A4") +
              file("/dav/m%20x/%FF") + file("/dav/m%20x/.hidden") + file("") + file("a") +
              file("/dav/m%20x/folder/", "<D:resourcetype><D:collection/></D:resourcetype>") +
              file("/dav/m%20x/folder", "<D:resourcetype><D:collection/></D:resourcetype>") +
              "<D:response><D:href>/dav/m%20x/gone</D:href><D:status>HTTP/1.1 404 Not Found"
              "</D:status></D:response>"),
        IsEmpty());
}

TEST(WebDavListingTest, AFileThatIsListedTwiceIsOne)
{
    EXPECT_THAT(names(file("/dav/m%20x/a") + file("/dav/m%20x/%61")), ElementsAre(u"a"_s));
}

TEST(WebDavListingTest, OnlyPropertiesThatAreThereCount)
{
    const QList<CloudFile> files = valueOf(parsed(multistatus(
        "<D:response><D:href>/dav/m%20x/a</D:href><D:propstat><D:prop>"
        "<D:getcontentlength>5</D:getcontentlength></D:prop><D:status>HTTP/1.1 404 Not Found"
        "</D:status></D:propstat><D:propstat><D:status>HTTP/1.1 200 OK</D:status><D:prop>"
        "<D:getetag>W/\"weak\"</D:getetag></D:prop></D:propstat></D:response>" +
        file("/dav/m%20x/b",
            "<D:getcontentlength>-3</D:getcontentlength><D:getetag>a\nb</D:getetag>") +
        file("/dav/m%20x/c", "<D:getcontentlength>99999999999999999999999</D:getcontentlength>"))));
    ASSERT_EQ(files.size(), 3);
    EXPECT_EQ(files.at(0).size, -1);
    EXPECT_EQ(files.at(0).revision, "\"weak\"");
    EXPECT_EQ(files.at(1).size, -1);
    EXPECT_EQ(files.at(1).revision, "") << "it could not be sent back";
    EXPECT_EQ(files.at(2).size, -1);
}

TEST(WebDavListingTest, CutAnywhereItIsNone)
{
    for (qsizetype length = 0; length < usual.size(); ++length) {
        EXPECT_TRUE(problemIn(parsed(usual.first(length)))) << length;
    }
}

TEST(WebDavListingTest, NothingIsExpandedOrFetched)
{
    QByteArray laughs = R"(<?xml version="1.0"?><!DOCTYPE d [<!ENTITY a "ha">)";
    for (char name = 'b'; name < 'k'; ++name) {
        laughs += QByteArray("<!ENTITY ") + name + " \"" +
                  (QByteArray("&") + char(name - 1) + ";").repeated(10) + "\">";
    }
    laughs += "]><D:multistatus xmlns:D=\"DAV:\">" + file("&j;") + "</D:multistatus>";
    EXPECT_EQ(problemIn(parsed(laughs)), CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(parsed("<!DOCTYPE d [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
                               "<multistatus xmlns=\"DAV:\">&x;</multistatus>")),
        CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(parsed(multistatus(file("&unknown;")))), CloudProblem::NotAnAccount);
}

TEST(WebDavListingTest, ItIsBoundedInEveryDirection)
{
    EXPECT_EQ(problemIn(parsed(multistatus(QByteArray("<x>").repeated(1000)))),
        CloudProblem::NotAnAccount);
    EXPECT_EQ(
        problemIn(parsed(multistatus(file(QByteArray(100'000, 'a'))))), CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(parsed(QByteArray("<multistatus ") + QByteArray(3 << 20, 'a'))),
        CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(parsed(multistatus("<!--" + QByteArray(3 << 20, 'a')))),
        CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(parsed(multistatus(QByteArray("<D:response/>").repeated(250'001)))),
        CloudProblem::TooLarge);
}

TEST(WebDavListingTest, OtherTextsAreNone)
{
    for (const QByteArray &text : {QByteArray("<html><body>Log in</body></html>"),
             QByteArray("<!doctype html><html>"), QByteArray("{}"), QByteArray("\0\1\2", 3),
             QByteArray("<?xml version=\"1.0\"?><D:prop xmlns:D=\"DAV:\"/>")}) {
        EXPECT_EQ(problemIn(parsed(text)), CloudProblem::NotAnAccount);
    }
}

TEST(WebDavListingTest, AHundredThousandFilesAreRead)
{
    QByteArray many;
    for (int number = 0; number < 100'000; ++number) {
        many += file("/dav/m%20x/" + QByteArray::number(number) + ".change",
            "<D:getcontentlength>1</D:getcontentlength><D:getetag>\"x\"</D:getetag>");
    }
    const QByteArray text = multistatus(many);
    EXPECT_LT(text.size(), WebDavListing::longestAnswer / 4);
    EXPECT_EQ(valueOf(parsed(text)).size(), 100'000);
}

TEST(WebDavListingTest, TheFolderItselfIsToldFromAFile)
{
    WebDavListing listing(folder);
    EXPECT_FALSE(listing.add(usual));
    EXPECT_TRUE(listing.hasFolder());
    WebDavListing other(QUrl(u"https://a.org/dav/m%20x/head"_s));
    EXPECT_FALSE(other.add(usual));
    EXPECT_FALSE(other.hasFolder());
}

} // namespace
} // namespace quillon::test
