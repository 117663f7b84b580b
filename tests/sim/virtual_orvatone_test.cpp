// The program virtual-orvatone, over its pseudo-terminal.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <filesystem>

#include "tests/e2e/child_process.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

class VirtualOrvatoneTest : public ::testing::Test {
 protected:
  fs::path Link() const { return folder / "virtual.port"; }

  std::vector<std::string> Command() const { return {VIRTUAL_ORVATONE, "--link", Link().string()}; }

  int OpenLine() const { return open(Link().c_str(), O_RDWR | O_NOCTTY); }

  /// Opens the device, sends, closes it.
  void Send(std::string_view zBytes) const {
    const int line = OpenLine();
    ASSERT_GE(line, 0);
    ASSERT_EQ(write(line, zBytes.data(), zBytes.size()), static_cast<ssize_t>(zBytes.size()));
    close(line);
  }

  static bool HasPrinted(ChildProcess& zProgram, const std::string& zLines) {
    return Await([&] { return zProgram.Output() == zLines; });
  }

  TempFolder folder;
};

TEST_F(VirtualOrvatoneTest, PrintsALineAnEventForEveryClient) {
  ChildProcess program(Command());
  ASSERT_TRUE(Await([&] { return fs::is_symlink(Link()); }));
  Send("\xb7\x16\x64"s);
  std::string lines = "code 183 \\HE\ncontrol 22 \\PITCH 100\n";
  EXPECT_TRUE(HasPrinted(program, lines)) << program.Output();
  Send("\0\x1d\n"s);  // a line feed and a zero pass through unchanged
  lines += "code 0 \\P0\ncontrol 29 \\PLAY 10: empty\n";
  EXPECT_TRUE(HasPrinted(program, lines)) << program.Output();
}

TEST_F(VirtualOrvatoneTest, ShowsHalfACommandAfterAQuietMomentAndStillTakesItsRest) {
  ChildProcess program(Command());
  ASSERT_TRUE(Await([&] { return fs::is_symlink(Link()); }));
  Send("\x16");
  EXPECT_TRUE(HasPrinted(program, "incomplete: 16  .\n")) << program.Output();
  Send("\x05\\0");
  program.Signal(SIGTERM);
  EXPECT_EQ(program.WaitForEnd(), 0);
  EXPECT_EQ(program.Output(), "incomplete: 16  .\ncontrol 22 \\PITCH 5\nincomplete: 5C 30  \\0\n");
}

TEST_F(VirtualOrvatoneTest, StopsCleanlyAndRemovesItsLink) {
  for (const int stopSignal : {SIGINT, SIGTERM, SIGHUP}) {
    ChildProcess program(Command());
    ASSERT_TRUE(Await([&] { return fs::is_symlink(Link()); }));
    Send("\x80");
    program.Signal(stopSignal);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(program.Output(), "code 128 \\IY\n");
    EXPECT_FALSE(fs::is_symlink(Link()));
  }
}

TEST_F(VirtualOrvatoneTest, ReplacesALeftOverLinkAndLeavesTheOneOfAnotherRun) {
  fs::create_symlink("/dev/pts/99999", Link());
  ChildProcess first(Command());
  ASSERT_TRUE(Await([&] { return fs::exists(Link()); }));
  const fs::path firstDevice = fs::read_symlink(Link());
  ChildProcess second(Command());
  ASSERT_TRUE(Await([&] { return fs::read_symlink(Link()) != firstDevice; }));
  first.Signal(SIGTERM);
  EXPECT_EQ(first.WaitForEnd(), 0);
  EXPECT_TRUE(fs::exists(Link()));
  Send("\x81");
  EXPECT_TRUE(HasPrinted(second, "code 129 \\IH\n"));
}

TEST_F(VirtualOrvatoneTest, LetsTheDeviceBeOpenedAgainAfterAClientDiedThatHadItForItself) {
  ChildProcess program(Command());
  ASSERT_TRUE(Await([&] { return fs::is_symlink(Link()); }));
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
  struct Row {
    std::vector<std::string> arguments;
    int status;
    std::string message;
  };
  const Row rows[] = {
      {{"--link", (folder / "file").string()}, 1, "exists already"},
      {{"--link", (folder / "link").string()}, 1, "exists already"},
      {{"--link", (folder / "none" / "x").string()}, 1, "cannot make the link"},
      {{"--link"}, 2, "--link needs a path"},
      {{"--link="}, 2, "--link needs a path"},
      {{"--port", "3"}, 2, "unknown argument: --port"},
      {{"--help"}, 0, "Usage: virtual-orvatone [--link PATH]"},
  };
  for (const Row& row : rows) {
    std::vector<std::string> command = {"sh", "-c", "\"$0\" \"$@\" 2>&1", VIRTUAL_ORVATONE};
    command.insert(command.end(), row.arguments.begin(), row.arguments.end());
    ChildProcess program(command);
    EXPECT_EQ(program.WaitForEnd(), row.status) << row.message;
    EXPECT_NE(program.Output().find(row.message), std::string::npos) << program.Output();
  }
  EXPECT_EQ(ReadBytes(folder / "file"), "precious");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

}  // namespace
}  // namespace loquitor::testing
