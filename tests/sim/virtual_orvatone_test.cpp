// The program virtual-orvatone, over its pseudo-terminal.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>

#include "tests/e2e/child_process.h"
#include "tests/support/pseudo_terminal.h"
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

TEST_F(VirtualOrvatoneTest, StopsWhileBytesKeepArriving) {
  ChildProcess program(
      {"sh", "-c", "exec \"$0\" \"$@\" >/dev/null", VIRTUAL_ORVATONE, "--link", link.string()});
  AwaitLink();
  ChildProcess sender({"sh", "-c",
                       "{ yes | head -c 100000; echo more than the line holds >&3; exec yes; } "
                       "3>&1 >\"$0\"",
                       link.string()});
  ASSERT_TRUE(Await([&] { return !sender.Output().empty(); }));
  program.Signal(SIGTERM);
  EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(VirtualOrvatoneTest, ReplacesALeftOverLinkAndLeavesThatOfARunningOne) {
  // A link that leads nowhere, and one to a pseudo-terminal that now belongs to someone else.
  PseudoTerminal other;
  for (const std::string& target : {"/dev/pts/99999"s, other.Path()}) {
    fs::create_symlink(target, link);
    ChildProcess first(command);
    ASSERT_TRUE(Await([&] { return fs::exists(link) && fs::read_symlink(link) != target; }));
    for (const bool isInUse : {false, true}) {
      const int line = OpenLine();
      ASSERT_EQ(ioctl(line, isInUse ? TIOCEXCL : TIOCNXCL), 0);
      ChildProcess second({"sh", "-c", "\"$0\" \"$@\" 2>&1", command[0], command[1], command[2]});
      EXPECT_EQ(second.WaitForEnd(), 1);
      EXPECT_NE(second.Output().find("is the port of another virtual Orvatone"), std::string::npos);
      ASSERT_EQ(ioctl(line, TIOCNXCL), 0);
      close(line);
    }
    Send("\x81");
    ExpectPrinted(first, "code 129 \\IH\n");
    first.Signal(SIGTERM);
    EXPECT_EQ(first.WaitForEnd(), 0);
    EXPECT_FALSE(fs::is_symlink(link));
  }
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
           {{"--version"}, 0, "virtual-orvatone 1.4\n"},
           {{"--wav"}, 2, "--wav needs a path"},
           {{"--speak", "--wav", "/dev/full"}, 1, "cannot write /dev/full: No space left"},
           {{"--wav", (folder / "none" / "x").string()}, 1, "x: No such file or directory"},
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

/// The command with standard error in its output and `zInput` to read.
std::vector<std::string> InShell(const std::vector<std::string>& zCommand,
                                 const std::string& zInput = "/dev/null") {
  std::vector<std::string> shell = {"sh", "-c", "exec \"$0\" \"$@\" 2>&1 <" + zInput};
  shell.insert(shell.end(), zCommand.begin(), zCommand.end());
  return shell;
}

TEST_F(VirtualOrvatoneTest, RecordsWhatIsSaidToItsEnd) {
  std::vector<std::string> recording = command;
  recording.insert(recording.end(), {"--wav", (folder / "heard.wav").string()});
  ChildProcess program(recording);
  AwaitLink();
  EXPECT_EQ(ReadBytes(folder / "heard.wav").size(), 44U);
  Send("\x1E\x32\xDD");  // half a second of silence, then a beep of 150 ms
  ASSERT_TRUE(Await([&] { return program.Output().find("221") != std::string::npos; }));
  program.Signal(SIGTERM);
  EXPECT_EQ(program.WaitForEnd(), 0);
  const std::string wav = ReadBytes(folder / "heard.wav");
  const double milliseconds = static_cast<double>(wav.size() - 44) / 32;
  EXPECT_NEAR(milliseconds, 650, 60);
  const std::string beep = wav.substr(44 + 32 * 550, 32 * 100);
  EXPECT_NE(beep.find_first_not_of('\0'), std::string::npos);
}

TEST_F(VirtualOrvatoneTest, ChangesItsInputsByLinesOfItsInput) {
  WriteBytes(folder / "input", "3h\nnonsense\n3 low\n7h");
  ChildProcess program(InShell(command, (folder / "input").string()));
  AwaitLink();
  const auto prints = [&](const std::string& zText) {
    return Await([&] { return program.Output().find(zText) != std::string::npos; });
  };
  EXPECT_TRUE(prints("\ninput 3 goes high: does nothing\n"));
  EXPECT_TRUE(prints("type an input and its level, for example 3h or 3l\ninput 3 goes low"));
  Send("\x80");
  EXPECT_TRUE(prints("code 128")) << "after the end of its input";
}

TEST_F(VirtualOrvatoneTest, SaysOnceThatNothingCanBeHeardAndGoesOn) {
  WriteBytes(folder / "no.conf", "pcm.!default { type hw card 99 }\n");
  std::vector<std::string> speaking = command;
  speaking.push_back("--speak");
  ChildProcess program(InShell(speaking), {{"ALSA_CONFIG_PATH", (folder / "no.conf").string()}});
  AwaitLink();
  Send("\x80\x80");
  ASSERT_TRUE(Await([&] { return program.Output().ends_with("code 128 \\IY\ncode 128 \\IY\n"); }));
  const std::string& output = program.Output();
  EXPECT_EQ(output.find("virtual-orvatone: nothing can be heard: "), 0U) << output;
  EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 4) << output;
}

#ifdef LOQUITOR_PORTAUDIO
/// The sound output of the system, played into a pipe that a test reads.
class PipedSound {
 public:
  explicit PipedSound(const TempFolder& zFolder) : config_(zFolder / "asound.conf") {
    const std::string pipe = (zFolder / "pipe").string();
    mkfifo(pipe.c_str(), 0600);
    pipe_ = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    WriteBytes(config_, "pcm.!default { type file slave.pcm { type null } file \"" + pipe +
                            "\" format \"raw\" }\n");
  }
  ~PipedSound() { close(pipe_); }
  PipedSound(const PipedSound&) = delete;
  PipedSound& operator=(const PipedSound&) = delete;

  std::string Config() const { return config_.string(); }

  /// The highest sample of the next 100 ms.
  int NextPeak() {
    constexpr std::size_t wanted = 3200;
    std::string bytes;
    Await([&] {
      std::array<char, wanted> buffer;
      const ssize_t count = read(pipe_, buffer.data(), wanted - bytes.size());
      bytes.append(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
      return bytes.size() == wanted;
    });
    int peak = 0;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
      const int low = static_cast<unsigned char>(bytes[i]);
      peak = std::max(peak, std::abs(static_cast<std::int16_t>(low | bytes[i + 1] << 8)));
    }
    return peak;
  }

 private:
  fs::path config_;
  int pipe_ = -1;
};

TEST_F(VirtualOrvatoneTest, IsHeardUntilItIsReset) {
  std::vector<std::string> speaking = command;
  speaking.push_back("--speak");
  PipedSound device(folder);
  ChildProcess program(speaking, {{"ALSA_CONFIG_PATH", device.Config()}});
  AwaitLink();
  EXPECT_EQ(device.NextPeak(), 0);
  Send("\\01J 440NX\\011J 31NX");
  EXPECT_TRUE(Await([&] { return device.NextPeak() > 1000; }));
  Send("\\0RX");
  EXPECT_TRUE(Await([&] { return device.NextPeak() == 0; }));
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(device.NextPeak(), 0) << "and stays silent";
  }
  Send(std::string(20, '\x88'));
  EXPECT_TRUE(Await([&] { return device.NextPeak() > 1000; }));
}
#endif

}  // namespace
}  // namespace loquitor::testing
