// loquitor-say and virtual-orvatone, over a pipe.

#include <gtest/gtest.h>

#include "tests/support/rows.h"
#include "tests/support/started_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/wine.h"

namespace loquitor::testing {
namespace {

namespace fs = std::filesystem;

/// Both programs in a folder of their own, whose name is no name of any code page of Windows.
class ProgramsTest : public ::testing::Test {
 protected:
  ProgramsTest() {
    fs::create_directory(place);
    fs::copy_file(LOQUITOR_SAY, say);
    WriteBytes(place / "Loquitor.Dic", "[words]\r\nhello=\\HE \\EH \\LO \\OWWW\r\n");
    GivenPorts("1=" + pipe);
  }

  void GivenPorts(const std::string& zEntries) const {
    WriteBytes(place / "Loquitor.ini", "[Ports]\r\n" + zEntries + "\r\n");
  }
  static bool IsListening(StartedProgram& zChip) {
    return Await([&] { return zChip.Errors().ends_with("\r\n"); });
  }
  /// Runs loquitor-say; what it printed, complaints after the rest.
  std::string Run(const std::wstring& zArguments, DWORD zStatus, std::string_view zInput = "") {
    StartedProgram program(say, zArguments, zInput);
    EXPECT_EQ(program.WaitForEnd(), zStatus);
    return program.Output() + program.Errors();
  }
  static void ExpectPrinted(StartedProgram& zProgram, const std::string& zText) {
    EXPECT_TRUE(Await([&] { return zProgram.Output() == zText; })) << zProgram.Output();
  }

  TempFolder folder;
  const fs::path place = folder.Path() / L"\u0393\u03BB\u03CE\u03C3\u03C3\u03B1 \u0438 \u00FC";
  const fs::path say = place / "loquitor-say.exe";
  const std::string name = "loquitor-" + std::to_string(GetCurrentProcessId());
  const std::string pipe = "\\\\.\\pipe\\" + name;
  const std::wstring link = L"--link " + std::wstring(name.begin(), name.end());
};

TEST_F(ProgramsTest, WhatIsSaidIsHeardFromOneClientAfterTheOther) {
  StartedProgram chip(VIRTUAL_ORVATONE, link);
  ASSERT_TRUE(IsListening(chip));
  EXPECT_EQ(chip.Errors(), "virtual-orvatone: listening on " + pipe + "\r\n");
  EXPECT_EQ(Run(L"hello \\PITCH \\100", 0), "");
  std::string heard =
      "code 183 \\HE\r\ncode 131 \\EH\r\ncode 146 \\LO\r\ncode 164 \\OWWW\r\n"
      "control 22 \\PITCH 100\r\n";
  ExpectPrinted(chip, heard);
  for (int i = 0; i < 5; ++i) {  // without a pause between them
    EXPECT_EQ(Run(L"", 0, "\\IY\r\n\\EH"), "");
    EXPECT_EQ(Run(L"\\" + std::to_wstring(i), 0), "");
    const std::string code = std::to_string(i);
    heard += "code 128 \\IY\r\ncode 131 \\EH\r\ncode " + code + " \\P" + code + "\r\n";
  }
  ExpectPrinted(chip, heard);
  EXPECT_EQ(Run(L"--force " + std::wstring(1000, L',') + L"\\IY", 0), "");
  for (int i = 0; i < 1000; ++i) {
    heard += "code 2 \\P2\r\n";
  }
  ExpectPrinted(chip, heard + "code 128 \\IY\r\n");
}

TEST_F(ProgramsTest, TheLineIsOneProgramsAndThePipeOneChips) {
  EXPECT_EQ(Run(L"hello", 1),
            "loquitor-say: Port 1: " + pipe + " does not exist. Plug in the adapter.\r\n");
  StartedProgram chip(VIRTUAL_ORVATONE, link);
  ASSERT_TRUE(IsListening(chip));
  StartedProgram second(VIRTUAL_ORVATONE, link);
  EXPECT_EQ(second.WaitForEnd(), 1U);
  EXPECT_EQ(second.Errors(), "virtual-orvatone: " + pipe +
                                 " is the port of another virtual Orvatone, which is running; end "
                                 "that one or choose another name\r\n");
  EXPECT_NE(Run(L"--ports", 0).find("\r\n1:  " + pipe + "\r\n"), std::string::npos);
  const HANDLE client =
      CreateFileA(pipe.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(client, INVALID_HANDLE_VALUE);
  EXPECT_NE(Run(L"hello", 1).find(pipe + " is in use by another program"), std::string::npos);
  DWORD count = 0;
  EXPECT_TRUE(WriteFile(client, "\x80\\0", 3, &count, nullptr));
  CloseHandle(client);
  ExpectPrinted(chip, "code 128 \\IY\r\nincomplete: 5C 30  \\0\r\n");
}

TEST_F(ProgramsTest, CtrlCEndsTheChipWhichHasRecordedWhatWasSaid) {
  const fs::path wav = place / L"\u0416.wav";
  StartedProgram chip(VIRTUAL_ORVATONE, link + L" --wav \"" + wav.wstring() + L"\"",
                      "3h\r\nnonsense\n");
  ExpectPrinted(chip,
                "input 3 goes high: does nothing\r\n"
                "type an input and its level, for example 3h or 3l\r\n");
  EXPECT_EQ(Run(L"\\DELAY \\50 \\221 \\PITCH", 0), "");  // half a second, then a beep of 150 ms
  EXPECT_TRUE(Await([&] { return chip.Output().ends_with("incomplete: 16  .\r\n"); }));
  chip.Interrupt();
  EXPECT_EQ(chip.WaitForEnd(), 0U);
  EXPECT_NEAR(static_cast<double>(fs::file_size(wav) - 44) / 32, 650, 60);
}

TEST_F(ProgramsTest, TheChipSaysThatNothingCanBeHeardAndGoesOn) {
  if (!IsOnWine()) {
    GTEST_SKIP() << "this machine may have a sound output";
  }
  StartedProgram chip(VIRTUAL_ORVATONE, link + L" --speak");
  ASSERT_TRUE(Await([&] { return chip.Errors().find("listening") != std::string::npos; }));
  EXPECT_EQ(chip.Errors().find("virtual-orvatone: nothing can be heard: no sound output was found"),
            0U);
  EXPECT_EQ(Run(L"\\IY", 0), "");
  ExpectPrinted(chip, "code 128 \\IY\r\n");
}

TEST_F(ProgramsTest, TextsAreUtf8WhereverTheyAre) {
  const std::string folderText = "\u0393\u03BB\u03CE\u03C3\u03C3\u03B1 \u0438 \u00FC";
  const std::string listed = Run(L"--ports", 0);
  EXPECT_TRUE(listed.ends_with("\\" + folderText + "\r\n")) << listed;
  EXPECT_EQ(Run(L"--check \u03A9\u0416\u00E9 helo", 1),
            "1:5: helo: no sounds for this word in the dictionary\r\n");
  EXPECT_EQ(Run(L"--set-port \"2=\u0416 port\"", 0), "");
  EXPECT_TRUE(ReadBytes(place / "Loquitor.ini").ends_with("\r\n2=\u0416 port\r\n"));
  EXPECT_NE(Run(L"--ports", 0).find("\\" + folderText + "\\\u0416 port  (missing)\r\n"),
            std::string::npos);
  EXPECT_EQ(Run(L"--\u0416", 2).find("loquitor-say: unknown option --\u0416 "), 0U);
  EXPECT_NE(Run(L"--wav none\\\u0416 hello", 1).find("cannot write none\\\u0416: "),
            std::string::npos);
}

TEST_F(ProgramsTest, CodesArePrintedALineForALine) {
  for (const auto& [arguments, input, output] : Rows<std::wstring, std::string, std::string>{
           {L"--codes \"hello, world  \\PITCH \\100\"", "",
            "183, 131, 146, 164, 2, 6, 22, 100\r\n"},
           {L"--codes", "hello\n\nnothing\r\n\\1\\255\n\\0",
            "183, 131, 146, 164\r\n\r\n\r\n1, 255\r\n0\r\n"},
           {L"--version", "", "loquitor-say 1.4\r\n"}}) {
    EXPECT_EQ(Run(arguments, 0, input), output);
  }
}

TEST_F(ProgramsTest, TheExplorerShowsTheirVersionAndIcon) {
  for (const char* program : {LOQUITOR_SAY, VIRTUAL_ORVATONE}) {
    const HMODULE file = LoadLibraryExA(program, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(file, nullptr) << program;
    EXPECT_NE(FindResourceA(file, MAKEINTRESOURCEA(1), RT_GROUP_ICON), nullptr);
    FreeLibrary(file);
    DWORD ignored = 0;
    std::string information(GetFileVersionInfoSizeA(program, &ignored), '\0');
    void* version = nullptr;
    UINT length = 0;
    ASSERT_TRUE(GetFileVersionInfoA(program, 0, static_cast<DWORD>(information.size()),
                                    information.data()));
    ASSERT_TRUE(VerQueryValueA(information.data(), "\\StringFileInfo\\040904B0\\FileVersion",
                               &version, &length));
    EXPECT_STREQ(static_cast<const char*>(version), "1.4.0");
  }
}

}  // namespace
}  // namespace loquitor::testing
