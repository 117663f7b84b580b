// The program loquitor-say, in a folder of its own, with a pseudo-terminal as the chip.

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/e2e/child_process.h"
#include "tests/e2e/pty_chip.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

/// `zCount` times the sound IY as Say Data.
std::string Sounds(int zCount) {
  std::string sayData;
  for (int i = 0; i < zCount; ++i) {
    sayData += "\\IY";
  }
  return sayData;
}

class LoquitorSayTest : public ::testing::Test {
 protected:
  LoquitorSayTest() {
    std::filesystem::copy_file(LOQUITOR_SAY, folder / "loquitor-say");
    WriteBytes(folder / "Loquitor.Dic",
               "[words]\r\nhello=\\HE \\EH \\LO \\OWWW\r\nworld=\\WW \\AXRR\r\n");
  }

  /// Port 1 is the chip.
  void GivenPort(std::string_view zMoreSettings = "") {
    WriteBytes(folder / "Loquitor.ini",
               "[Ports]\r\n1=" + chip.Path() + "\r\n" + std::string(zMoreSettings));
  }

  /// Starts the program with the input file; arguments as the shell reads them.
  ChildProcess Start(const std::string& zArguments) const {
    const std::string command = "cd \"$0\" && exec ./loquitor-say <input >output 2>errors ";
    return ChildProcess({"sh", "-c", command + zArguments, folder.Path().string()});
  }

  /// Runs the program to its end; its exit status.
  int Run(const std::string& zArguments, std::string_view zInput = "") const {
    WriteBytes(folder / "input", zInput);
    return Start(zArguments).WaitForEnd(30);
  }

  std::string Output() const { return ReadBytes(folder / "output"); }
  std::string Errors() const { return ReadBytes(folder / "errors"); }

  TempFolder folder;
  PtyChip chip;
};

TEST_F(LoquitorSayTest, PrintsCodesALineForEachLine) {
  const Rows<const char*, std::string, std::string> rows = {
      {R"(--codes 'hello, world  \PITCH \100')", "",
       "183, 131, 146, 164, 2, 147, 151, 6, 22, 100\n"},
      {"--codes hello world", "ignored", "183, 131, 146, 164, 147, 151\n"},
      {"hello --codes", "", "183, 131, 146, 164\n"},
      {R"(--codes --force -- --codes '\0')", "", "0\n"},
      {"--codes hello '' '' world", "", "183, 131, 146, 164, 4, 1, 147, 151\n"},
      {"--codes ''", "", "\n"},
      {"--codes", "", ""},
      {"--codes", "hello\n\nnothing\n\\1\\255\n\\0", "183, 131, 146, 164\n\n\n1, 255\n0\n"},
      {"--codes", "\\IY\r\n\\E\0H\n"s, "128\n131\n"},
      {"--codes", "h\xC3\xA9llo h\xE9llo hello\n", "183, 131, 146, 164\n"}};
  for (const auto& [arguments, input, output] : rows) {
    EXPECT_EQ(Run(arguments, input), 0) << output;
    EXPECT_EQ(Output(), output);
    EXPECT_EQ(Errors(), "");
  }
}

TEST_F(LoquitorSayTest, SendsItsArgumentsOrItsInput) {
  GivenPort();
  EXPECT_EQ(Run("hello world"), 0) << Errors();
  EXPECT_EQ(chip.Received(), "\xB7\x83\x92\xA4\x93\x97");
  chip.Forget();
  EXPECT_EQ(Run("", "\\IY\n\nnothing\n\\EH,"), 0) << Errors();
  EXPECT_EQ(chip.Received(), "\x80\x83\x02");
  EXPECT_EQ(Output() + Errors(), "");
}

TEST_F(LoquitorSayTest, AsksBeforeALongPhraseOnlyWithoutFlowControl) {
  const char* const off = "[Serial]\r\nFlowControl=0\r\n";
  const Rows<const char*, std::string, int, int> rows = {
      {"", "", 65, 0},
      {"[Serial]\r\nFlowControl=1\r\n", "", 65, 0},
      {off, "", 64, 0},
      {off, "", 65, 1},
      {off, "--force ", 1000, 0}};
  for (const auto& [moreSettings, option, codes, status] : rows) {
    GivenPort(moreSettings);
    chip.Forget();
    EXPECT_EQ(Run(option + "'" + Sounds(codes) + "'"), status) << moreSettings;
    EXPECT_EQ(chip.Received(), std::string(status == 0 ? codes : 0, '\x80'));
    EXPECT_EQ(Errors().find("--force") != std::string::npos, status == 1) << Errors();
  }
  GivenPort(off);
  chip.Forget();
  EXPECT_EQ(Run("", "\\EH\n" + Sounds(65) + "\n\\EH\n"), 1);
  EXPECT_EQ(chip.Received(), "\x83") << "the lines before the one that cannot be sent";
}

TEST_F(LoquitorSayTest, SaysWhatIsWrongWithThePort) {
  const std::pair<std::string, std::string> rows[] = {
      {"[Serial]\r\nPort=0\r\n", "there is no port 0"},
      {"[Serial]\r\nPort=99999999999\r\n", "there is no port 99999999999"},
      {"[Ports]\r\n1=missing.port\r\n", "cannot open port 1 ("},
      {"[Ports]\r\n1=" + chip.Path() + "\r\n[Serial]\r\nBaudRate=fast\r\n", "cannot open port 1"},
  };
  for (const auto& [settings, message] : rows) {
    WriteBytes(folder / "Loquitor.ini", settings);
    EXPECT_EQ(Run("hello"), 1) << settings;
    EXPECT_NE(Errors().find("loquitor-say: " + message), std::string::npos) << Errors();
  }
  EXPECT_EQ(chip.Received(), "");
}

TEST_F(LoquitorSayTest, EndsWhenThePortVanishesInMidSend) {
  GivenPort();
  WriteBytes(folder / "input", Sounds(100'000));  // far more than a line holds that nobody reads
  ChildProcess program = Start("");
  ASSERT_TRUE(Await([&] { return chip.Received().size() > 100; }));
  chip.HangUp();
  EXPECT_EQ(program.WaitForEnd(), 1);
  EXPECT_EQ(Errors(), "loquitor-say: port 1 failed while sending\n");
}

TEST_F(LoquitorSayTest, TellsWhenItsInputOrOutputFails) {
  GivenPort();
  for (const auto& [arguments, message] : {std::pair("--codes <.", "cannot read standard input"),
                                           {"--codes <&-", "cannot read standard input"},
                                           {"<.", "cannot read standard input"},
                                           {"--codes '' >&-", "cannot write to standard output"},
                                           {"--help >&-", "cannot write to standard output"}}) {
    EXPECT_EQ(Run(arguments), 1) << arguments;
    EXPECT_EQ(Errors(), "loquitor-say: "s + message + "\n") << arguments;
  }
}

TEST_F(LoquitorSayTest, ExplainsItself) {
  const Rows<const char*, int, std::string, std::string> rows = {
      // how output and errors begin
      {"--help", 0, "Usage: loquitor-say ", ""},
      {"-h hello", 0, "Usage: loquitor-say ", ""},
      {"--code", 2, "", "loquitor-say: unknown option --code"},
      {"hello -x", 2, "", "loquitor-say: unknown option -x"}};
  for (const auto& [arguments, status, output, errors] : rows) {
    EXPECT_EQ(Run(arguments), status);
    EXPECT_TRUE(Output().starts_with(output) && Output().empty() == output.empty());
    EXPECT_TRUE(Errors().starts_with(errors) && Errors().empty() == errors.empty());
  }
}

}  // namespace
}  // namespace loquitor::testing
