#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "line/win32/win_serial_port.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loquitor::testing {
namespace {

/// The other end of a pipe that stands in for a port.
class PipeChip {
 public:
  explicit PipeChip(DWORD zBufferSize)
      : pipe_(CreateNamedPipeA(Name().c_str(), PIPE_ACCESS_INBOUND, PIPE_TYPE_BYTE | PIPE_NOWAIT, 1,
                               0, zBufferSize, 0, nullptr)) {}
  ~PipeChip() { Unplug(); }

  static std::string Name() {
    return "\\\\.\\pipe\\loquitor-test-" + std::to_string(GetCurrentProcessId());
  }

  /// Everything that has arrived.
  std::string Read() {
    std::string bytes(4096, '\0');
    DWORD count = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    bytes.resize(ReadFile(pipe_, bytes.data(), size, &count, nullptr) ? count : 0);
    return bytes;
  }

  void Unplug() {
    if (pipe_ != INVALID_HANDLE_VALUE) {
      CloseHandle(pipe_);
      pipe_ = INVALID_HANDLE_VALUE;
    }
  }

 private:
  HANDLE pipe_;
};

/// A port whose event loop is this fixture.
class WinSerialPortTest : public ::testing::Test {
 protected:
  PortError Open(const std::string& zDevice, const std::string& zBaudRate = "9600") {
    return port.Open({zDevice, zBaudRate, false}).error;
  }
  /// Writes what fits and gives up after two seconds without progress.
  std::size_t Write(std::string_view zBytes) {
    std::size_t written = 0;
    for (ULONGLONG begin = GetTickCount64(); written < zBytes.size();) {
      if (port.IsReadyForByte() && port.WriteByte(static_cast<std::uint8_t>(zBytes[written]))) {
        ++written;
      } else if (!port.IsOpen() || GetTickCount64() - begin > 2000) {
        break;
      }
    }
    return written;
  }
  void RunEvents() {
    for (const auto& action : std::exchange(later, {})) {
      action();
    }
  }

  std::vector<std::function<void()>> later;
  WinSerialPort port{
      [this](std::function<void()> zAction) { later.push_back(std::move(zAction)); }};
};

TEST_F(WinSerialPortTest, HandsEveryByteOverInOrder) {
  PipeChip chip(4096);
  std::string all;
  for (int code = 0; code < 256; ++code) {
    all += static_cast<char>(code);
  }
  ASSERT_EQ(Open(PipeChip::Name()), PortError::None);
  EXPECT_EQ(Write(all), all.size());
  EXPECT_EQ(port.UnsentBytes(), 0);
  EXPECT_EQ(chip.Read(), all);
  port.Close();
  EXPECT_FALSE(port.IsOpen());
}

TEST_F(WinSerialPortTest, SaysWhyItCannotBeOpened) {
  std::optional<PipeChip> chip(16);
  struct {
    std::string device;
    std::string baudRate;
    PortError error;
  } const rows[] = {
      {"COM99", "9600", PortError::Missing},
      {"\\\\.\\pipe\\loquitor-no-such-pipe", "9600", PortError::Missing},
      {"", "9600", PortError::Missing},
      {"NUL", "9600", PortError::NotSerial},
      {PipeChip::Name(), "fast", PortError::BadBaudRate},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Open(row.device, row.baudRate), row.error) << row.device;
    EXPECT_FALSE(port.IsOpen());
    EXPECT_FALSE(port.WriteByte(1));
  }
  chip.reset();
  chip.emplace(16);
  ASSERT_EQ(Open(PipeChip::Name()), PortError::None);
  WinSerialPort second([](const auto&) {});
  EXPECT_EQ(second.Open({PipeChip::Name(), "9600", false}).error, PortError::InUse);
}

TEST_F(WinSerialPortTest, QueuesFewBytesWhenTheOtherEndTakesNone) {
  PipeChip chip(1);
  ASSERT_EQ(Open(PipeChip::Name()), PortError::None);
  const std::size_t written = Write(std::string(100, 'x'));
  EXPECT_LE(port.UnsentBytes(), PortQueueLimit);
  EXPECT_LT(written, 100U);
  EXPECT_TRUE(port.IsOpen());
  const ULONGLONG begin = GetTickCount64();
  port.Close();
  EXPECT_LT(GetTickCount64() - begin, 1000U) << "closing waits for a line that is held back";
}

TEST_F(WinSerialPortTest, TellsALostPortOnceFromTheEventLoop) {
  int failures = 0;
  port.SetFailureHandler([&failures] { ++failures; });
  PipeChip chip(4096);
  ASSERT_EQ(Open(PipeChip::Name()), PortError::None);
  chip.Unplug();
  Write("abc");
  EXPECT_FALSE(port.IsOpen());
  EXPECT_EQ(failures, 0);
  RunEvents();
  RunEvents();
  EXPECT_EQ(failures, 1);
  EXPECT_EQ(Open(PipeChip::Name()), PortError::Missing);
}

TEST_F(WinSerialPortTest, AFailureIsNotToldAfterTheEnd) {
  int failures = 0;
  {
    WinSerialPort lost(
        [this](std::function<void()> zAction) { later.push_back(std::move(zAction)); });
    lost.SetFailureHandler([&failures] { ++failures; });
    PipeChip chip(4096);
    ASSERT_EQ(lost.Open({PipeChip::Name(), "9600", false}).error, PortError::None);
    chip.Unplug();
    static_cast<void>(lost.WriteByte(1));
    static_cast<void>(lost.UnsentBytes());
  }
  RunEvents();
  EXPECT_EQ(failures, 0);
}

}  // namespace
}  // namespace loquitor::testing
