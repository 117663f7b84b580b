// The program virtual-orvatone, over its pseudo-terminal.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <filesystem>

#include "tests/e2e/child_process.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

class VirtualOrvatoneTest : public ::testing::Test {
 protected:
  int OpenLine() const { return open(link.c_str(), O_RDWR | O_NOCTTY); }
  void AwaitLink() const {
    ASSERT_TRUE(Await([&] { return fs::exists(link); }));
  }

  /// Opens the device, sends, closes it.
  void Send(std::string_view zBytes) const {
    const int line = OpenLine();
    ASSERT_GE(line, 0);
    ASSERT_EQ(write(line, zBytes.data(), zBytes.size()), static_cast<ssize_t>(zBytes.size()));
    close(line);
  }

  static void ExpectPrinted(ChildProcess& zProgram, const std::string& zLines) {
    EXPECT_TRUE(Await([&] { return zProgram.Output() == zLines; })) << zProgram.Output();
  }

  TempFolder folder;
  const fs::path link = folder / "virtual.port";
  const std::vector<std::string> command{VIRTUAL_ORVATONE, "--link", link.string()};
};

TEST_F(VirtualOrvatoneTest, PrintsALineAnEventForEveryClientAndShowsHalfACommandAfterAQuietMoment) {
  ChildProcess program(command);
  AwaitLink();
  std::string lines;
  for (const auto& [bytes, printed] : Rows<std::string, std::string>{
           {"\xb7\x16\x64", "code 183 \\HE\ncontrol 22 \\PITCH 100\n"},
           {"\0\x1d\n"s,
            "code 0 \\P0\ncontrol 29 \\PLAY 10: empty\n"},  // both pass through unchanged
           {"\x16", "incomplete: 16  .\n"},
           {"\x05", "control 22 \\PITCH 5\n"},  // its rest
           {"\\0", "incomplete: 5C 30  \\0\n"}}) {
    Send(bytes);
    lines += printed;
    ExpectPrinted(program, lines);
  }
  program.Signal(SIGTERM);
  EXPECT_EQ(program.WaitForEnd(), 0);
  EXPECT_EQ(program.Output(), lines);  // what has been shown is not shown again
}

TEST_F(VirtualOrvatoneTest, StopsCleanlyAndRemovesItsLink) {
  for (const int stopSignal : {SIGINT, SIGTERM, SIGHUP}) {
    ChildProcess program(command);
    AwaitLink();
    Send("\x80\\0");
    program.Signal(stopSignal);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(program.Output(), "code 128 \\IY\nincomplete: 5C 30  \\0\n");
    EXPECT_FALSE(fs::is_symlink(link));
  }
}

TEST_F(VirtualOrvatoneTest, ReplacesALeftOverLinkAndLeavesTheOneOfAnotherRun) {
  fs::create_symlink("/dev/pts/99999", link);
  ChildProcess first(command);
  AwaitLink();
  const fs::path firstDevice = fs::read_symlink(link);
  ChildProcess second(command);
  ASSERT_TRUE(Await([&] { return fs::read_symlink(link) != firstDevice; }));
  first.Signal(SIGTERM);
  EXPECT_EQ(first.WaitForEnd(), 0);
  EXPECT_TRUE(fs::exists(link));
  Send("\x81");
  ExpectPrinted(second, "code 129 \\IH\n");
}

TEST_F(VirtualOrvatoneTest, LetsTheDeviceBeOpenedAgainAfterAClientDiedThatHadItForItself) {
  ChildProcess program(command);
  AwaitLink();
  const int line = OpenLine();
  ASSERT_EQ(ioctl(line, TIOCEXCL), 0);
  close(line);
  EXPECT_TRUE(Await([&] {
    const int again = OpenLine();
    int isExclusive = 1;
    ioctl(again, TIOCGEXCL, &isExclusive);
    close(again);
    return again >= 0 && isExclusive == 0;
  }));
}

TEST_F(VirtualOrvatoneTest, RefusesWhatItCannotDo) {
  WriteBytes(folder / "file", "precious");
  fs::create_symlink(folder / "file", folder / "link");
  for (const auto& [arguments, status, message] : Rows<std::vector<std::string>, int, std::string>{
           {{"--link", (folder / "file").string()}, 1, "exists already"},
           {{"--link", (folder / "link").string()}, 1, "exists already"},
           {{"--link", (folder / "none" / "x").string()}, 1, "cannot make the link"},
           {{"--link"}, 2, "--link needs a path"},
           {{"--link="}, 2, "--link needs a path"},
           {{"--port", "3"}, 2, "unknown argument: --port"},
           {{"--help"}, 0, "Usage: virtual-orvatone [--link PATH]"}}) {
    std::vector<std::string> shell = {"sh", "-c", "\"$0\" \"$@\" 2>&1", VIRTUAL_ORVATONE};
    shell.insert(shell.end(), arguments.begin(), arguments.end());
    ChildProcess program(shell);
    EXPECT_EQ(program.WaitForEnd(), status) << message;
    EXPECT_NE(program.Output().find(message), std::string::npos) << program.Output();
  }
  EXPECT_EQ(ReadBytes(folder / "file"), "precious");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

}  // namespace
}  // namespace loquitor::testing
