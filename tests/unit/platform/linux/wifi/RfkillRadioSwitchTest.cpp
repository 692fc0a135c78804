// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/RfkillRadioSwitch.h"

#include "fakes/LogCapture.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/rfkill.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The kernel's side of the device is a pipe that the test writes into.
class RfkillRadioSwitchTest : public ::testing::Test
{
protected:
    RfkillRadioSwitchTest()
    {
        EXPECT_EQ(::mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR), 0);
        plug();
    }
    ~RfkillRadioSwitchTest() override { unplug(); }

    void plug()
    {
        kernel = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC);
        EXPECT_GE(kernel, 0);
    }
    void unplug()
    {
        if (kernel >= 0) {
            ::close(kernel);
            kernel = -1;
        }
    }
    void tell(quint32 index, quint8 operation, bool isSoft, bool isHard,
        quint8 type = RFKILL_TYPE_WLAN) const
    {
        const rfkill_event event{index, type, operation, quint8(isSoft), quint8(isHard)};
        ASSERT_EQ(::write(kernel, &event, sizeof event), static_cast<ssize_t>(sizeof event));
    }
    void open()
    {
        radioSwitch = std::make_unique<RfkillRadioSwitch>(path);
        radioSwitch->watch([this] { ++changes; });
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"rfkill"_s);
    int kernel = -1;
    int changes = 0;
    std::unique_ptr<RfkillRadioSwitch> radioSwitch;
};

TEST_F(RfkillRadioSwitchTest, WithoutARadioNothingIsOff)
{
    open();
    EXPECT_FALSE(radioSwitch->isOff());
    tell(0, RFKILL_OP_ADD, true, false, RFKILL_TYPE_BLUETOOTH);
    QCoreApplication::processEvents();
    EXPECT_FALSE(radioSwitch->isOff()) << "that is another kind of radio";
    EXPECT_EQ(changes, 0);
}

TEST_F(RfkillRadioSwitchTest, KnowsFromTheStartHowTheRadiosAre)
{
    tell(0, RFKILL_OP_ADD, false, false, RFKILL_TYPE_BLUETOOTH);
    tell(1, RFKILL_OP_ADD, true, false);
    open();
    EXPECT_TRUE(radioSwitch->isOff());
}

TEST_F(RfkillRadioSwitchTest, SaysThatItWasTurnedByKeyOrByCase)
{
    tell(1, RFKILL_OP_ADD, false, false);
    open();
    EXPECT_FALSE(radioSwitch->isOff());
    tell(1, RFKILL_OP_CHANGE, true, false);
    QCoreApplication::processEvents();
    EXPECT_TRUE(radioSwitch->isOff());
    EXPECT_EQ(changes, 1);
    tell(1, RFKILL_OP_CHANGE, true, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 1) << "it is off as before";
    tell(1, RFKILL_OP_CHANGE, false, true);
    QCoreApplication::processEvents();
    EXPECT_TRUE(radioSwitch->isOff()) << "the switch on the case is still off";
    tell(1, RFKILL_OP_CHANGE, false, false);
    QCoreApplication::processEvents();
    EXPECT_FALSE(radioSwitch->isOff());
    EXPECT_EQ(changes, 2);
}

TEST_F(RfkillRadioSwitchTest, OneRadioThatIsOnIsEnough)
{
    tell(1, RFKILL_OP_ADD, true, false);
    tell(2, RFKILL_OP_ADD, false, false);
    open();
    EXPECT_FALSE(radioSwitch->isOff());
    tell(2, RFKILL_OP_DEL, false, false);
    QCoreApplication::processEvents();
    EXPECT_TRUE(radioSwitch->isOff()) << "the one that was on was pulled out";
    EXPECT_EQ(changes, 1);
}

TEST_F(RfkillRadioSwitchTest, ADeviceThatEndsIsNotReadAgain)
{
    tell(1, RFKILL_OP_ADD, true, false);
    open();
    unplug();
    QCoreApplication::processEvents();
    EXPECT_TRUE(radioSwitch->isOff()) << "what it said last";
    plug();
    tell(1, RFKILL_OP_CHANGE, false, false);
    QCoreApplication::processEvents();
    EXPECT_TRUE(radioSwitch->isOff()) << "else it would be asked for ever";
}

TEST_F(RfkillRadioSwitchTest, AMachineWithoutTheDeviceIsNothingToLog)
{
    const LogCapture log;
    const RfkillRadioSwitch none(folder.filePath(u"none"_s));
    EXPECT_FALSE(none.isOff());
    EXPECT_EQ(LogCapture::taken(), QStringList());
}

} // namespace
} // namespace quillon::test
