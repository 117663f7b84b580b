#include "line/qt/qt_serial_port.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <filesystem>

#include "tests/support/pseudo_terminal.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

/// Acts as a user without rights. Permissions and the exclusive mode of devices do not bind the
/// superuser.
class AsNobody {
 public:
  AsNobody() {
    if (isSuperuser_ && ::seteuid(65534) != 0) {
      throw std::runtime_error("cannot give up rights");
    }
  }
  ~AsNobody() {
    if (isSuperuser_ && ::seteuid(0) != 0) {
      std::abort();
    }
  }

 private:
  bool isSuperuser_ = ::geteuid() == 0;
};

class QtSerialPortTest : public ::testing::Test {
 protected:
  QtSerialPortTest() {
    port.SetFailureHandler([this] { ++failures; });
  }

  PortError ErrorOfOpening(const std::string& zDevice, const std::string& zBaudRate = "9600",
                           bool zHandshaking = false) {
    const PortFailure failure = port.Open({zDevice, zBaudRate, zHandshaking});
    EXPECT_EQ(failure.device, zDevice);
    EXPECT_EQ(port.IsOpen(), failure.error == PortError::None);
    return failure.error;
  }
  bool Open(const std::string& zDevice, const std::string& zBaudRate = "9600",
            bool zHandshaking = false) {
    return ErrorOfOpening(zDevice, zBaudRate, zHandshaking) == PortError::None;
  }
  bool Open() { return Open(terminal.Path()); }

  /// Writes until the line takes no more. Returns the number of bytes.
  std::size_t FillLine() {
    std::size_t count = 0;
    while (port.IsReadyForByte() && port.WriteByte('x')) {
      ++count;
    }
    return count;
  }

  PseudoTerminal terminal;
  TempFolder folder;
  QtSerialPort port;
  int failures = 0;
};

TEST_F(QtSerialPortTest, WrittenBytesAreOnTheLineAtOnce) {
  ASSERT_TRUE(Open());
  terminal.Answer("thrown away, and not echoed");
  QTest::qWait(20);
  port.DiscardReceived();
  for (const char code : EveryByte()) {
    ASSERT_TRUE(port.IsReadyForByte() && port.WriteByte(static_cast<std::uint8_t>(code)));
  }
  EXPECT_EQ(terminal.Received(), EveryByte());
}

TEST_F(QtSerialPortTest, WhatIsNoUsableDeviceIsRefusedWithTheCause) {
  WriteBytes(folder / "regular", "text");
  std::filesystem::create_symlink(folder / "nowhere", folder / "dangling");
  std::filesystem::create_symlink("loop", folder / "loop");
  for (const auto& [device, error] :
       Rows<std::string, PortError>{{folder / "", PortError::NotSerial},
                                    {folder / "regular", PortError::NotSerial},
                                    {folder / "dangling", PortError::Missing},
                                    {folder / "loop", PortError::Missing},
                                    {folder / "regular/under", PortError::Missing},
                                    {"", PortError::Unusable},
                                    {"/dev/null", PortError::NotSerial},
                                    {"/dev/nul\0l"s, PortError::Missing},
                                    {std::string(5000, 'x'), PortError::Missing}}) {
    EXPECT_EQ(ErrorOfOpening(device), error) << device;
    EXPECT_FALSE(port.IsReadyForByte() || port.WriteByte(1)) << device;
  }
  EXPECT_TRUE(Open());
  QCoreApplication::processEvents();
  EXPECT_EQ(failures, 0);
}

TEST_F(QtSerialPortTest, SpeedAndHandshakingReachTheLine) {
  for (const auto& [baudRate, handshaking, speed] : Rows<const char*, bool, speed_t>{
           {"2400", false, B2400}, {"9600", true, B9600}, {"19200", false, B19200}}) {
    ASSERT_TRUE(Open(terminal.Path(), baudRate, handshaking)) << baudRate;
    const termios settings = terminal.Settings();
    EXPECT_EQ(::cfgetospeed(&settings), speed) << baudRate;
    EXPECT_EQ((settings.c_cflag & CRTSCTS) != 0, handshaking) << baudRate;
    EXPECT_EQ(settings.c_cflag & (CSIZE | PARENB | CSTOPB), unsigned{CS8}) << baudRate;
  }
  EXPECT_EQ(ErrorOfOpening(terminal.Path(), "9600 baud"), PortError::BadBaudRate);
}

TEST_F(QtSerialPortTest, APortInUseIsRefusedAndKeepsItsSettings) {
  std::filesystem::create_symlink(terminal.Path(), folder / "virtual port");
  std::filesystem::create_symlink("virtual port", folder / "again");
  ASSERT_TRUE(Open(folder / "again", "19200", true));
  QtSerialPort second;
  EXPECT_EQ(second.Open({terminal.Path(), "2400", false}).error, PortError::InUse);
  const termios settings = terminal.Settings();
  EXPECT_EQ(::cfgetospeed(&settings), B19200);
  EXPECT_NE(settings.c_cflag & CRTSCTS, 0u);
  EXPECT_TRUE(port.WriteByte('A'));
  EXPECT_EQ(terminal.Received(), "A");

  port.Close();
  EXPECT_EQ(second.Open({terminal.Path(), "2400", false}).error, PortError::None);
}

TEST_F(QtSerialPortTest, ADeviceWithoutPermissionOrInUseByAnyOtherProgramIsRefused) {
  const gid_t groupId = ::geteuid() == 0 ? 1 : ::getegid();  // one that AsNobody does not keep
  const std::string group = ::getgrgid(groupId)->gr_name;
  ASSERT_EQ(::chown(terminal.Path().c_str(), ::geteuid(), groupId), 0);
  for (const auto& [mode, error, groupToJoin] :
       Rows<mode_t, PortError, std::string>{{0000, PortError::NotPermitted, ""},
                                            {0040, PortError::NotPermitted, ""},
                                            {0060, PortError::NotPermitted, group},
                                            {0666, PortError::None, ""}}) {
    ASSERT_EQ(::chmod(terminal.Path().c_str(), mode), 0);
    const AsNobody nobody;
    const PortFailure failure = port.Open({terminal.Path(), "9600", false});
    EXPECT_EQ(failure.error, error);
    EXPECT_EQ(failure.group, groupToJoin);
  }
  port.Close();
  const AsNobody nobody;
  const int other = ::open(terminal.Path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(other, 0);
  ASSERT_EQ(::ioctl(other, TIOCEXCL), 0);
  EXPECT_EQ(ErrorOfOpening(terminal.Path()), PortError::InUse);
  ASSERT_EQ(::ioctl(other, TIOCNXCL), 0);
  EXPECT_TRUE(Open());
  ::close(other);
  EXPECT_LT(::open(terminal.Path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC), 0);  // now it is ours
  EXPECT_TRUE(Open());  // and opens again for us
}

TEST_F(QtSerialPortTest, ADeviceThatAnotherProgramHasLockedIsRefusedEvenToTheSuperuser) {
  const int other = ::open(terminal.Path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  const auto isLocked = [other] { return ::flock(other, LOCK_EX | LOCK_NB) != 0; };
  ASSERT_FALSE(isLocked());
  EXPECT_EQ(ErrorOfOpening(terminal.Path()), PortError::InUse);
  ASSERT_EQ(::flock(other, LOCK_UN), 0);
  EXPECT_TRUE(Open());
  EXPECT_TRUE(isLocked()) << "now it is ours";
  port.Close();
  EXPECT_FALSE(isLocked());
  ::close(other);
}

TEST_F(QtSerialPortTest, AHeldBackLineNeitherBlocksNorFails) {
  ASSERT_TRUE(Open());
  const std::size_t count = FillLine();
  EXPECT_GT(count, 100u);
  QTest::qWait(20);
  EXPECT_FALSE(port.IsReadyForByte());
  EXPECT_TRUE(port.IsOpen());
  EXPECT_EQ(terminal.Received(), std::string(count, 'x'));

  ASSERT_TRUE(QTest::qWaitFor([this] { return port.IsReadyForByte(); }));
  EXPECT_TRUE(port.WriteByte('y'));
  EXPECT_EQ(terminal.Received(), "y");
  EXPECT_EQ(failures, 0);
}

TEST_F(QtSerialPortTest, ClosingAHeldBackLineReturnsAndItOpensAgain) {
  ASSERT_TRUE(Open());
  FillLine();
  QElapsedTimer timer;
  timer.start();
  port.Close();
  EXPECT_LT(timer.elapsed(), 5000);  // a blocked close takes the system's 30 seconds
  EXPECT_FALSE(port.IsOpen());
  port.Close();
  EXPECT_TRUE(Open());
}

TEST_F(QtSerialPortTest, AHangUpIsToldOnceWhileIdleOrAfterTheByteThatFails) {
  for (const bool isIdle : {true, false}) {
    PseudoTerminal another;
    ASSERT_TRUE(Open(another.Path()));
    another.HangUp();
    // It must look ready: a sender then goes on to write, and learns of the failure.
    EXPECT_TRUE(isIdle || (port.IsReadyForByte() && !port.WriteByte('A')));
    EXPECT_EQ(port.IsOpen(), isIdle);
    EXPECT_EQ(failures, 0);  // not from within a call
    ASSERT_TRUE(QTest::qWaitFor([this] { return failures > 0; }));
    QTest::qWait(50);
    EXPECT_EQ(std::exchange(failures, 0), 1);
    EXPECT_FALSE(port.IsOpen() || port.WriteByte('A'));
  }
}

TEST_F(QtSerialPortTest, AFailureThatWasClosedOrReplacedIsNotTold) {
  ASSERT_TRUE(Open());
  terminal.HangUp();
  EXPECT_FALSE(port.WriteByte('A'));
  PseudoTerminal another;
  ASSERT_TRUE(Open(another.Path()));
  QTest::qWait(20);
  EXPECT_TRUE(port.IsOpen());
  EXPECT_EQ(failures, 0);
}

TEST_F(QtSerialPortTest, AfterAHangUpTheEventLoopRests) {
  ASSERT_TRUE(Open());
  FillLine();  // the layer below still wants to write
  terminal.HangUp();
  ASSERT_TRUE(QTest::qWaitFor([this] { return failures > 0; }));
  int turns = 0;
  QObject context;
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &context,
                   [&turns] { ++turns; });
  QTest::qWait(200);
  EXPECT_LT(turns, 100);  // qWait itself takes a few; a storm takes hundreds of thousands
}

}  // namespace
}  // namespace loquitor::testing
