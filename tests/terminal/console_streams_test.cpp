// Needs a console that nobody else writes to.

#include "terminal/console_streams.h"

#include <gtest/gtest.h>

#include <istream>
#include <ostream>
#include <string>
#include <string_view>

#include "tests/support/rows.h"
#include "tests/support/wine.h"

namespace loquitor::testing {
namespace {

class ConsoleStreamsTest : public ::testing::Test {
 protected:
  static HANDLE Open(const wchar_t* zName) {
    return CreateFileW(zName, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       nullptr, OPEN_EXISTING, 0, nullptr);
  }
  ~ConsoleStreamsTest() override {
    CloseHandle(screen);
    CloseHandle(keys);
  }

  /// The first characters of the first line on the screen.
  std::wstring FirstLine(DWORD zLength) const {
    std::wstring text(zLength, L'\0');
    DWORD count = 0;
    ReadConsoleOutputCharacterW(screen, text.data(), zLength, {0, 0}, &count);
    return text.substr(0, count);
  }

  void Type(std::wstring_view zText) const {
    for (const wchar_t unit : zText) {
      INPUT_RECORD key{};
      key.EventType = KEY_EVENT;
      key.Event.KeyEvent.bKeyDown = TRUE;
      key.Event.KeyEvent.wRepeatCount = 1;
      key.Event.KeyEvent.wVirtualKeyCode = unit == L'\r' ? VK_RETURN : 0;
      key.Event.KeyEvent.uChar.UnicodeChar = unit;
      DWORD count = 0;
      ASSERT_TRUE(WriteConsoleInputW(keys, &key, 1, &count));
    }
  }

  HANDLE screen = Open(L"CONOUT$");
  HANDLE keys = Open(L"CONIN$");
};

TEST_F(ConsoleStreamsTest, TextIsWrittenWholeInWhateverPiecesItComes) {
  for (const auto& [pieces, shown] : Rows<std::vector<std::string>, std::wstring>{
           {{"a\u03A9\u0416\u20AC."}, L"a\u03A9\u0416\u20AC."},
           {{"a\xCE", "\xA9\xD0\x96\xE2", "\x82", "\xAC."}, L"a\u03A9\u0416\u20AC."},
           {{"a\xFF", "b\xCE", "c"}, L"a\uFFFDb\uFFFDc"}}) {
    ASSERT_TRUE(SetConsoleCursorPosition(screen, {0, 0}));
    ConsoleOutput buffer(screen);
    std::ostream stream(&buffer);
    for (const std::string& piece : pieces) {
      stream << piece << std::flush;
    }
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(FirstLine(static_cast<DWORD>(shown.size())), shown);
  }
}

TEST_F(ConsoleStreamsTest, ALineIsReadAsItWasTyped) {
  if (IsOnWine()) {
    GTEST_SKIP() << "Wine's console answers a read only now and then when no key is pressed";
  }
  ConsoleInput buffer(keys);
  std::istream stream(&buffer);
  Type(L"h\u03A9\u0416\r");
  std::string line;
  ASSERT_TRUE(std::getline(stream, line));
  EXPECT_EQ(line, "h\u03A9\u0416");
}

TEST_F(ConsoleStreamsTest, AConsoleThatIsGoneIsAFailure) {
  ConsoleOutput output(nullptr);
  std::ostream out(&output);
  out << "lost" << std::flush;
  EXPECT_TRUE(out.bad());
  ConsoleInput input(nullptr);
  std::istream in(&input);
  std::string line;
  EXPECT_FALSE(std::getline(in, line));
  EXPECT_TRUE(in.bad());
}

}  // namespace
}  // namespace loquitor::testing
