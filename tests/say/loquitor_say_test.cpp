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

TEST_F(LoquitorSayTest, ChecksForWhatWouldBeSilent) {
  const std::string word = ": no sounds for this word in the dictionary\n";
  const std::string mnemonic = ": no such mnemonic or code\n";
  const Rows<const char*, std::string, std::string, int> rows = {
      {"--check 'hello, world  \\PITCH \\100'", "", "", 0},
      {"--check", "hello\n\n\\IY\n", "", 0},
      {"--check hello wurld '\\IY\\XX'", "", "1:7: wurld" + word + "1:16: \\XX" + mnemonic, 1},
      {"--check", "hello\n helo\r\nhello \\256", "2:2: helo" + word + "3:7: \\256" + mnemonic, 1},
      {"--check \"$(printf 'hello \\303\\251 no\\nt \\\\XX')\"", "",
       "1:9: not" + word + "2:3: \\XX" + mnemonic, 1}};
  for (const auto& [arguments, input, output, status] : rows) {
    EXPECT_EQ(Run(arguments, input), status) << arguments;
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
      {"[Serial]\r\nPort=0\r\n", "Port 0: no device has this number. "},
      {"[Serial]\r\nPort=99999999999\r\n", "Port 99999999999: no device has this number. "},
      {"[Ports]\r\n1=missing.port\r\n",
       "Port 1: " + (folder / "missing.port").string() + " does not exist. "},
      {"[Ports]\r\n1=" + chip.Path() + "\r\n[Serial]\r\nBaudRate=fast\r\n",
       "Port 1: BaudRate=fast in section [Serial] of Loquitor.ini is not a speed of this port. "},
  };
  for (const auto& [settings, message] : rows) {
    WriteBytes(folder / "Loquitor.ini", settings);
    EXPECT_EQ(Run("hello"), 1) << settings;
    EXPECT_NE(Errors().find("loquitor-say: " + message), std::string::npos) << Errors();
  }
  EXPECT_EQ(chip.Received(), "");
}

TEST_F(LoquitorSayTest, SetsAndListsThePorts) {
  WriteBytes(folder / "Loquitor.ini", "; mine\r\n[ports]\r\n1=a\r\n2=keep\r\n");
  const std::string device = folder / "it's my \\\\device";
  EXPECT_EQ(Run("--set-port \"" + device + "\""), 0);
  const std::string stored = folder / "it's my \\device";
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "; mine\r\n[ports]\r\n1=" + stored + "\r\n2=keep\r\n");
  EXPECT_EQ(Run("--set-port 99=virtual.port"), 0);
  EXPECT_TRUE(ReadBytes(folder / "Loquitor.ini").ends_with("2=keep\r\n99=virtual.port\r\n"));
  EXPECT_EQ(Run("--add-port virtual.port"), 0);
  EXPECT_EQ(Output(), "99\n");
  EXPECT_EQ(Run("--add-port other.port"), 0);
  EXPECT_EQ(Output(), "98\n");
  EXPECT_TRUE(ReadBytes(folder / "Loquitor.ini").ends_with("\r\n98=other.port\r\n"));
  EXPECT_EQ(Run("--ports"), 0);
  EXPECT_NE(Output().find("\n1:  " + stored + "  (missing)\n"), std::string::npos) << Output();

  for (const std::string& unstorable : {"' '"s, "\"$(printf 'a\\nb')\""s, std::string(300, 'x')}) {
    EXPECT_EQ(Run("--set-port=" + unstorable), 1) << unstorable;
    EXPECT_TRUE(Errors().starts_with("loquitor-say: cannot store the device in Loquitor.ini"));
  }
  std::filesystem::remove(folder / "Loquitor.ini");
  std::filesystem::create_symlink(folder / "none" / "Loquitor.ini", folder / "Loquitor.ini");
  EXPECT_EQ(Run("--set-port x"), 1);
  std::filesystem::remove(folder / "Loquitor.ini");
  std::filesystem::create_directory(folder / "Loquitor.ini");
  EXPECT_EQ(Run("--set-port x"), 1);
}

#ifdef LOQUITOR_READS_ENGLISH

TEST_F(LoquitorSayTest, SpeaksEnglish) {
  GivenPort();
  EXPECT_EQ(Run("--english 'Hello, see me.'"), 0) << Errors();
  EXPECT_EQ(chip.Received(), "\xB7\x83\x92\xA4\x02\xBB\x80\x8C\x80\x03");
  chip.Forget();
  EXPECT_EQ(Run("--english", "see\nHello\n"), 0);
  EXPECT_EQ(chip.Received(), "\xBB\x80\xB7\x83\x92\xA4");
  EXPECT_EQ(Output() + Errors(), "");
}

TEST_F(LoquitorSayTest, PrintsWhatEnglishBecomes) {
  const Rows<const char*, std::string, std::string, std::string> rows = {
      {"--english --say-data Hello see '\\PITCH \\9'", "", "Hello \\SE\\IY \\PITCH \\9\n", ""},
      {"--say-data --english", "see\n\nhello.\n", "\\SE\\IY\n\nhello \\P3\n", ""},
      {"--english --codes see hello", "", "187, 128, 183, 131, 146, 164\n", ""},
      {"--english --say-data 'see 😀 hello \\QQ'", "", "\\SE\\IY hello\n",
       "loquitor-say: cannot read \"😀\", \"\\QQ\"\n"},
  };
  for (const auto& [arguments, input, output, errors] : rows) {
    EXPECT_EQ(Run(arguments, input), 0) << arguments;
    EXPECT_EQ(Output(), output);
    EXPECT_EQ(Errors(), errors);
  }
}

TEST_F(LoquitorSayTest, AddsTheWordsOfAListToTheDictionary) {
  const std::string before = ReadBytes(folder / "Loquitor.Dic") + "empty=\r\n";
  WriteBytes(folder / "Loquitor.Dic", before);
  WriteBytes(folder / "list", "see Hello\nSee, me\r\nwe'll caf\xC3\xA9 7 empty b2b");
  EXPECT_EQ(Run("--add-words list"), 0);
  EXPECT_EQ(Output(), "4 words added\n");
  EXPECT_EQ(Errors(), "loquitor-say: no words of Say Data: \"we'll\", \"caf\xC3\xA9\"\n");
  const std::string filled = before.substr(0, before.size() - 2) + "\\EH \\MM \\PE \\TU \\IY\r\n";
  EXPECT_EQ(ReadBytes(folder / "Loquitor.Dic"),
            filled + "see=\\SE \\IY\r\nme=\\MM \\IY\r\nb2b=\\BE \\IY \\TU \\IHWW \\BE \\IY\r\n");
  EXPECT_EQ(Run("--add-words list"), 0);
  EXPECT_EQ(Output(), "0 words added\n");
  EXPECT_EQ(Run("--add-words ."), 1);
  EXPECT_EQ(Run("--add-words missing"), 1);
  EXPECT_EQ(Errors(), "loquitor-say: cannot read missing\n");
  WriteBytes(folder / "list", std::string("s\0e\0e\0", 6));
  EXPECT_EQ(Run("--add-words list"), 1);
  EXPECT_EQ(Errors(), "loquitor-say: list is not a text in UTF-8\n");
}

#endif

TEST_F(LoquitorSayTest, EndsWhenThePortVanishesInMidSend) {
  GivenPort();
  WriteBytes(folder / "input", Sounds(100'000));  // far more than a line holds that nobody reads
  ChildProcess program = Start("");
  ASSERT_TRUE(Await([&] { return chip.Received().size() > 100; }));
  chip.HangUp();
  EXPECT_EQ(program.WaitForEnd(), 1);
  EXPECT_EQ(Errors(),
            "loquitor-say: Port 1: " + chip.Path() + " failed. Check the cable and the adapter.\n");
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
      {"--version", 0, "loquitor-say 1.4\n", ""},
      {"--set-port", 2, "", "loquitor-say: --set-port needs a device"},
      {"--add-port=", 2, "", "loquitor-say: --add-port needs a device"},
      {"--set-port=", 2, "", "loquitor-say: --set-port needs a device"},
      {"--add-words", 2, "", "loquitor-say: --add-words needs a file"},
      {"--say-data x", 2, "", "loquitor-say: --say-data needs --english"},
      {"--set-ports x", 2, "", "loquitor-say: unknown option --set-ports"},
      {"--code", 2, "", "loquitor-say: unknown option --code"},
      {"hello -x", 2, "", "loquitor-say: unknown option -x"}};
  for (const auto& [arguments, status, output, errors] : rows) {
    EXPECT_EQ(Run(arguments), status);
    EXPECT_TRUE(Output().starts_with(output) && Output().empty() == output.empty());
    EXPECT_TRUE(Errors().starts_with(errors) && Errors().empty() == errors.empty());
  }
}

TEST_F(LoquitorSayTest, WritesWhatWouldBeHeardAndSendsNothing) {
  GivenPort("[EEPROM]\r\nPhrase3=hello\r\n");
  const auto wav = [&](const std::string& zArguments, std::string_view zInput = "") {
    EXPECT_EQ(Run("--wav out.wav " + zArguments, zInput), 0) << Errors();
    return ReadBytes(folder / "out.wav");
  };
  const std::string hello = wav("hello");
  EXPECT_EQ(hello.substr(0, 4) + hello.substr(8, 8), "RIFFWAVEfmt ");
  EXPECT_GT(hello.size(), 9600U) << "0.3 s";
  EXPECT_LT(hello.size(), 48000U);
  EXPECT_TRUE(wav("", "hello\n") == hello);
  EXPECT_TRUE(wav("'\\PLAY \\3'") == hello) << "the phrase of the EEPROM editor";
  EXPECT_TRUE(wav("'hello \\WAIT world'") == wav("'hello \\WAIT'")) << "a Wait ends it";
  EXPECT_GT(wav("", "hello\nworld\n").size(), hello.size() + 8000);
  EXPECT_EQ(Run("--wav=other.wav hello"), 0);
  EXPECT_TRUE(ReadBytes(folder / "other.wav") == hello);
  for (const char* nothing : {"''", "nonsense '\\300' '\\9\\10'", "'\\PITCH'"}) {
    EXPECT_EQ(wav(nothing).substr(0, 4), "RIFF") << nothing;
    EXPECT_LT(wav(nothing).size(), 44 + 3200U) << nothing;
  }
  EXPECT_EQ(chip.Received(), "");
}

TEST_F(LoquitorSayTest, SaysWhyItCannotWriteTheSound) {
  WriteBytes(folder / "Loquitor.ini", "[EEPROM]\r\nPhrase0=\\IY \\PLAY \\0\r\n");
  for (const auto& [arguments, status, message] : Rows<std::string, int, std::string>{
           {"--wav none/out.wav hello", 1, "cannot write none/out.wav: No such file or directory"},
           {"--wav /dev/full hello", 1, "cannot write /dev/full: No space left on device"},
           {"--wav out.wav '\\PLAY \\0'", 1, "without end"},
           {"hello --wav", 2, "--wav needs a file"},
           {"--wav= hello", 2, "--wav needs a file"},
           {"--wav out.wav --codes hello", 2, "--codes and --wav do not go together"}}) {
    EXPECT_EQ(Run(arguments), status) << arguments;
    EXPECT_NE(Errors().find("loquitor-say: "), std::string::npos) << arguments;
    EXPECT_NE(Errors().find(message), std::string::npos) << Errors();
  }
}

}  // namespace
}  // namespace loquitor::testing
