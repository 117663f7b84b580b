// The program loquitor-say, in a folder of its own, with a pseudo-terminal as the chip.

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/e2e/child_process.h"
#include "tests/e2e/pty_chip.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

constexpr const char* Dictionary =
    "[words]\r\nhello=\\HE \\EH \\LO \\OWWW\r\nworld=\\WW \\AXRR\r\n";

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
    WriteBytes(folder / "Loquitor.Dic", Dictionary);
  }

  /// Port 1 is the chip.
  void GivenPort(std::string_view zMoreSettings = "") {
    WriteBytes(folder / "Loquitor.ini",
               "[Ports]\r\n1=" + chip.Device() + "\r\n" + std::string(zMoreSettings));
  }

  std::vector<std::string> Command(const std::vector<std::string>& zArguments) const {
    std::vector<std::string> command = {
        "sh", "-c", "cd \"$0\" && exec ./loquitor-say \"$@\" <input >output 2>errors",
        folder.Path().string()};
    command.insert(command.end(), zArguments.begin(), zArguments.end());
    return command;
  }

  /// Runs the program to its end; its exit status.
  int Run(const std::vector<std::string>& zArguments, std::string_view zInput = "") {
    WriteBytes(folder / "input", zInput);
    ChildProcess program(Command(zArguments));
    return program.WaitForEnd(30);
  }

  std::string Output() const { return ReadBytes(folder / "output"); }
  std::string Errors() const { return ReadBytes(folder / "errors"); }

  TempFolder folder;
  PtyChip chip;
};

TEST_F(LoquitorSayTest, PrintsCodesALineForEachLine) {
  struct Row {
    std::vector<std::string> arguments;
    std::string input;
    std::string output;
  };
  const Row rows[] = {
      {{"--codes", "hello, world  \\PITCH \\100"},
       "",
       "183, 131, 146, 164, 2, 147, 151, 6, 22, 100\n"},
      {{"--codes", "hello", "world"}, "ignored", "183, 131, 146, 164, 147, 151\n"},
      {{"hello", "--codes"}, "", "183, 131, 146, 164\n"},
      {{"--codes", "--force", "--", "--codes", "\\0"}, "", "0\n"},
      {{"--codes", "hello", "", "", "world"}, "", "183, 131, 146, 164, 4, 1, 147, 151\n"},
      {{"--codes", ""}, "", "\n"},
      {{"--codes"}, "", ""},
      {{"--codes"}, "hello\n\nnothing\n\\1\\255\n\\0", "183, 131, 146, 164\n\n\n1, 255\n0\n"},
      {{"--codes"}, "\\IY\r\n\\E\0H\n"s, "128\n131\n"},
      {{"--codes"}, "h\xC3\xA9llo h\xE9llo hello\n", "183, 131, 146, 164\n"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Run(row.arguments, row.input), 0) << row.output;
    EXPECT_EQ(Output(), row.output);
    EXPECT_EQ(Errors(), "");
  }
}

TEST_F(LoquitorSayTest, SendsItsArgumentsOrItsInput) {
  GivenPort();
  EXPECT_EQ(Run({"hello", "world"}), 0) << Errors();
  EXPECT_EQ(chip.Received(), "\xB7\x83\x92\xA4\x93\x97");
  chip.Forget();
  EXPECT_EQ(Run({}, "\\IY\n\nnothing\n\\EH,"), 0) << Errors();
  EXPECT_EQ(chip.Received(), "\x80\x83\x02");
  EXPECT_EQ(Output() + Errors(), "");
}

TEST_F(LoquitorSayTest, AsksBeforeALongPhraseOnlyWithoutFlowControl) {
  struct Row {
    const char* settings;
    std::vector<std::string> options;
    int codes;
    int status;
  };
  const std::string off = "[Serial]\r\nFlowControl=0\r\n";
  const Row rows[] = {
      {"", {}, 65, 0},
      {"[Serial]\r\nFlowControl=1\r\n", {}, 65, 0},
      {off.c_str(), {}, 64, 0},
      {off.c_str(), {}, 65, 1},
      {off.c_str(), {"--force"}, 65, 0},
      {off.c_str(), {"--force"}, 1000, 0},
  };
  for (const Row& row : rows) {
    GivenPort(row.settings);
    chip.Forget();
    std::vector<std::string> arguments = row.options;
    arguments.push_back(Sounds(row.codes));
    EXPECT_EQ(Run(arguments), row.status) << row.settings << row.codes;
    EXPECT_EQ(chip.Received(), std::string(row.status == 0 ? row.codes : 0, '\x80'));
    EXPECT_EQ(Errors().find("--force") != std::string::npos, row.status == 1) << Errors();
  }
}

TEST_F(LoquitorSayTest, StopsAtTheLineThatCannotBeSentAndSendsThoseBefore) {
  GivenPort("[Serial]\r\nFlowControl=0\r\n");
  EXPECT_EQ(Run({}, "\\EH\n" + Sounds(65) + "\n\\EH\n"), 1);
  EXPECT_EQ(chip.Received(), "\x83");
}

TEST_F(LoquitorSayTest, SaysWhatIsWrongWithThePort) {
  struct Row {
    std::string settings;
    std::string message;
  };
  const Row rows[] = {
      {"[Serial]\r\nPort=0\r\n", "there is no port 0"},
      {"[Serial]\r\nPort=99999999999\r\n", "there is no port 99999999999"},
      {"[Ports]\r\n1=missing.port\r\n", "cannot open port 1 ("},
      {"[Ports]\r\n1=.\r\n", "cannot open port 1 ("},
      {"[Ports]\r\n1=Loquitor.Dic\r\n", "cannot open port 1 ("},
      {"[Ports]\r\n1=" + chip.Device() + "\r\n[Serial]\r\nBaudRate=fast\r\n", "cannot open port 1"},
  };
  for (const Row& row : rows) {
    WriteBytes(folder / "Loquitor.ini", row.settings);
    EXPECT_EQ(Run({"hello"}), 1) << row.settings;
    EXPECT_NE(Errors().find("loquitor-say: " + row.message), std::string::npos) << Errors();
  }
  EXPECT_EQ(chip.Received(), "");
}

TEST_F(LoquitorSayTest, EndsWhenThePortVanishesInMidSend) {
  GivenPort();
  WriteBytes(folder / "input", Sounds(100'000));  // far more than a line holds that nobody reads
  ChildProcess program(Command({}));
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
    ChildProcess program({"sh", "-c", "cd \"$0\" && exec ./loquitor-say 2>errors "s + arguments,
                          folder.Path().string()});
    EXPECT_EQ(program.WaitForEnd(), 1) << arguments;
    EXPECT_EQ(Errors(), "loquitor-say: "s + message + "\n") << arguments;
  }
}

TEST_F(LoquitorSayTest, ExplainsItself) {
  struct Row {
    std::vector<std::string> arguments;
    int status;
    std::string_view output;
    std::string_view errors;
  };
  for (const Row& row : {Row{{"--help"}, 0, "Usage: loquitor-say ", ""},
                         Row{{"-h", "hello"}, 0, "Usage: loquitor-say ", ""},
                         Row{{"--code"}, 2, "", "loquitor-say: unknown option --code"},
                         Row{{"hello", "-x"}, 2, "", "loquitor-say: unknown option -x"}}) {
    EXPECT_EQ(Run(row.arguments), row.status);
    EXPECT_EQ(Output().substr(0, row.output.size()), row.output);
    EXPECT_EQ(Output().empty(), row.output.empty());
    EXPECT_EQ(Errors().substr(0, row.errors.size()), row.errors);
    EXPECT_EQ(Errors().empty(), row.errors.empty());
  }
}

}  // namespace
}  // namespace loquitor::testing
