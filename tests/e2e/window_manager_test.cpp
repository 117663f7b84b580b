#include <gmock/gmock.h>

#include <sstream>

#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

using ::testing::HasSubstr;

// The second number of _MOTIF_WM_HINTS: what the user may do to the window.
enum Functions : unsigned { Resize = 2, Move = 4, Minimise = 8, Maximise = 16, Close = 32 };

unsigned FunctionsOf(const std::string& zHints) {
  std::istringstream numbers(zHints.substr(zHints.find('=') + 1));
  unsigned flags = 0;
  unsigned functions = 0;
  char comma = 0;
  numbers >> std::hex >> flags >> comma >> functions;
  return functions;
}

/// What the size hints say behind `zWords`, for example "minimum size: ".
std::string SizeIn(const std::string& zHints, const std::string& zWords) {
  const std::size_t at = zHints.find(zWords);
  return at == std::string::npos
             ? "none"
             : zHints.substr(at + zWords.size(), zHints.find('\n', at) - at - zWords.size());
}

class WindowManager : public LoquitorSession {
 protected:
  /// Editors: a close box alone, not in the task bar (a utility window that belongs to another).
  void ExpectToolWindow(const std::string& zWindow) {
    const unsigned functions = FunctionsOf(desktop.Property(zWindow, "_MOTIF_WM_HINTS"));
    EXPECT_EQ(functions & ~Resize, unsigned{Move | Close});
    EXPECT_THAT(desktop.Property(zWindow, "_NET_WM_WINDOW_TYPE"), HasSubstr("TYPE_UTILITY"));
    EXPECT_THAT(desktop.Property(zWindow, "_NET_WM_STATE"), HasSubstr("STATE_MODAL"));
    EXPECT_THAT(desktop.Property(zWindow, "WM_TRANSIENT_FOR"), HasSubstr("window id"));
  }
  std::string Limit(const std::string& zWindow, const std::string& zWhich) {
    return SizeIn(desktop.Property(zWindow, "WM_NORMAL_HINTS"), zWhich + " size: ");
  }
};

TEST_F(WindowManager, LearnsWhatMayBeDoneToEachWindow) {
  StartLoquitor();
  EXPECT_EQ(FunctionsOf(desktop.Property(mainWindow, "_MOTIF_WM_HINTS")),
            unsigned{Resize | Move | Minimise | Close});
  EXPECT_EQ(Limit(mainWindow, "maximum"), "none");

  OpenPhraseEditor();
  ExpectToolWindow(phraseWindow);
  EXPECT_EQ(Limit(phraseWindow, "minimum"), "780 by 529");
  EXPECT_EQ(Limit(phraseWindow, "maximum"), "780 by 529");

  ClickOn(phraseWindow, place::ViewCodes, place::SayDataFrame);
  const std::string codesWindow = desktop.AwaitWindow(CodesTitle);
  ASSERT_NE(codesWindow, "");
  ExpectToolWindow(codesWindow);
  EXPECT_EQ(Limit(codesWindow, "maximum"), "none");
}

TEST_F(WindowManager, FindsTheDesktopEntryAndTheIcon) {
  StartLoquitor();
  const std::string entry = ReadBytes(DESKTOP_ENTRY);
  const std::string key = "\nStartupWMClass=";
  const std::size_t at = entry.find(key);
  ASSERT_NE(at, std::string::npos);
  const std::size_t from = at + key.size();
  EXPECT_THAT(desktop.Property(mainWindow, "WM_CLASS"),
              HasSubstr(", \"" + entry.substr(from, entry.find('\n', from) - from) + "\""));
  const std::string icon = desktop.Property(mainWindow, "_NET_WM_ICON");
  for (const char* size : {"16 x 16", "32 x 32", "48 x 48", "128 x 128"}) {
    EXPECT_THAT(icon, HasSubstr("Icon (" + std::string(size) + ")"));
  }
}

}  // namespace
}  // namespace loquitor::testing
