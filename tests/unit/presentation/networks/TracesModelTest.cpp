// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/TracesModel.h"

#include "base/SettingsKeys.h"
#include "devices/CurrentInterface.h"
#include "exposure/LinkIdentifiers.h"
#include "fakes/FakeExposureSource.h"
#include "unit/networks/NetworkFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;
using Answer = ExposureFacts::Answer;

class TracesModelTest : public NetworkFixture
{
protected:
    TracesModelTest()
    {
        select(u"wlp2s0"_s);
        source.facts.hostName = u"laptop"_s;
        source.facts.ipv4 = {
            .isUsed = Answer::Yes, .sendsName = Answer::Yes, .sendsIdentifier = Answer::No};
        source.facts.ipv6.isUsed = Answer::No;
        source.facts.ipv6Addresses = QList<ExposureFacts::Ipv6Address>();
        source.facts.avahi.isTold = Answer::No;
        source.facts.resolvedMdns.isTold = Answer::No;
        source.facts.resolvedLlmnr.isTold = Answer::No;
        source.facts.login.isUsed = Answer::No;
        QObject::connect(model.get(), &TracesModel::changed, [this] { ++changes; });
    }

    void select(const QString &device)
    {
        current.selectInterface(device);
        scheduler.runPending();
    }
    void show()
    {
        model->setShown(true);
        scheduler.runPending();
    }
    QString hint(qsizetype row) const { return model->state().rows.value(row).hint; }

    FakeExposureSource source{scheduler};
    CurrentInterface current{settings, scheduler, table};
    std::unique_ptr<TracesModel> model =
        std::make_unique<TracesModel>(source, scheduler, current, table);
    int changes = 0;
};

TEST_F(TracesModelTest, ReadsNothingWhileNobodyLooks)
{
    model->interfaceWasUpdated();
    model->addressChangeBegan(u"wlp2s0"_s);
    model->addressChangeEnded(u"wlp2s0"_s, true);
    scheduler.advance(1h);
    EXPECT_TRUE(source.asked.isEmpty());
    show();
    EXPECT_EQ(source.asked, QStringList(u"wlp2s0"_s));
    model->setShown(false);
    model->interfaceWasUpdated();
    scheduler.advance(1h);
    EXPECT_EQ(source.asked.size(), 1);
}

TEST_F(TracesModelTest, ShowsWhatTheInterfaceGivesAway)
{
    model->setShown(true);
    EXPECT_EQ(model->state().title, u"What the network of wlp2s0 still sees"_s);
    EXPECT_EQ(model->state().line, u"Looking…"_s);
    scheduler.runPending();
    ASSERT_EQ(model->state().rows.size(), 1);
    EXPECT_EQ(model->state().rows.first().label, u"Name sent with DHCP"_s);
    EXPECT_EQ(model->state().rows.first().value, u"laptop"_s);
    EXPECT_EQ(model->state().line, QString());
}

TEST_F(TracesModelTest, SaysThatNothingIsLeft)
{
    source.facts.ipv4.sendsName = Answer::No;
    show();
    EXPECT_TRUE(model->state().rows.isEmpty());
    EXPECT_EQ(model->state().line, u"Nothing but the address is known to tell who this is."_s);
}

TEST_F(TracesModelTest, KnowsTheAddressesOfTheInterface)
{
    const QByteArray hardware = linkOctets(table.record(u"wlp2s0"_s).hardware.value_or(QString()));
    source.facts.ipv4.sendsIdentifier = Answer::Yes;
    source.facts.ipv4.identifier = "\x01" + hardware;
    source.facts.ipv4.identifierMade = ExposureFacts::Made::OfHardwareAddress;
    show();
    EXPECT_TRUE(hint(1).startsWith(u"Gives the hardware address away."_s)) << hint(1).toStdString();
}

TEST_F(TracesModelTest, FollowsTheSelection)
{
    show();
    source.facts.ipv4.sendsName = Answer::No;
    select(u"enp1s0"_s);
    model->interfaceWasUpdated();
    EXPECT_TRUE(model->state().rows.isEmpty()) << "those of another interface are not shown";
    EXPECT_EQ(model->state().title, u"What the network of enp1s0 still sees"_s);
    scheduler.runPending();
    EXPECT_EQ(source.asked, QStringList({u"wlp2s0"_s, u"enp1s0"_s}));
}

TEST_F(TracesModelTest, AsksOnceForManyEventsAndKeepsWhatItShows)
{
    show();
    changes = 0;
    for (int i = 0; i < 100; ++i) {
        model->interfaceWasUpdated();
    }
    EXPECT_EQ(source.asked.size(), 2);
    EXPECT_EQ(model->state().rows.size(), 1);
    scheduler.runPending();
    EXPECT_EQ(source.asked.size(), 3) << "and once more for what came meanwhile";
    EXPECT_EQ(changes, 0) << "nothing is another";
}

TEST_F(TracesModelTest, TellsWhatAChangeLeft)
{
    source.facts.ipv4.sendsName = Answer::No;
    source.facts.ipv6Addresses = {
        {.octets = QByteArray::fromHex("20010db8000000001234567890abcdef"), .age = 600s}};
    show();
    EXPECT_FALSE(hint(0).contains("Kept"_L1));
    model->addressChangeBegan(u"wlp2s0"_s);
    scheduler.advance(20s);
    model->addressChangeEnded(u"wlp2s0"_s, true);
    scheduler.runPending();
    EXPECT_TRUE(hint(0).contains("Kept"_L1)) << hint(0).toStdString();
    source.facts.ipv6Addresses->first().age = 10s;
    model->interfaceWasUpdated();
    scheduler.runPending();
    EXPECT_FALSE(hint(0).contains("Kept"_L1)) << "it was made during the change";
}

TEST_F(TracesModelTest, CountsOnlyAChangeThatWasMade)
{
    source.facts.ipv6Addresses = {
        {.octets = QByteArray::fromHex("20010db8000000001234567890abcdef"), .age = 600s}};
    show();
    model->addressChangeBegan(u"wlp2s0"_s);
    model->addressChangeEnded(u"wlp2s0"_s, false);
    model->addressChangeBegan(u"enp1s0"_s);
    model->addressChangeEnded(u"enp1s0"_s, true);
    scheduler.runPending();
    EXPECT_FALSE(hint(1).contains("Kept"_L1));
}

TEST_F(TracesModelTest, IsSilentWhenNothingIsSelected)
{
    settings.set(keys::currentInterfaceDict, QVariantMap());
    show();
    EXPECT_TRUE(source.asked.isEmpty());
    EXPECT_EQ(model->state().line, u"No interface is selected."_s);
}

TEST_F(TracesModelTest, MayGoBeforeTheAnswerComes)
{
    model->setShown(true);
    model.reset();
    scheduler.runPending();
    EXPECT_EQ(source.asked.size(), 1);
}

} // namespace
} // namespace quillon::test
