#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/e2e/desktop.h"
#include "tests/e2e/pty_chip.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {

/// A control by its place in twips: the window's own, or that of its frame and its place in it.
struct Place {
  int left, top, width, height;
};

inline const std::string MainTitle = "Quenlith Phrase Translator for Orvatone  V.1.4";
inline const std::string PhraseTitle = " Orvatone Phrase Editor";
inline const std::string CodesTitle = "Orvatone Codes";
inline const std::string DictionaryTitle = "Orvatone Dictionary Editor";

/// The built program in a real X server, in a folder of its own, with a pseudo-terminal as the chip
/// on port 1.
class LoquitorSession : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Starts the program and waits for its main window.
  void StartLoquitor();

  /// Clicks the middle of a control of a window; `zFrame` is where its frame lies.
  void ClickOn(const std::string& zWindow, const Place& zPlace, const Place& zFrame = {});
  void DoubleClickOn(const std::string& zWindow, const Place& zPlace, const Place& zFrame = {});

  /// Opens the phrase editor from the main window.
  void OpenPhraseEditor();

  /// Types into the Say Data box, which has the focus when the phrase editor is open.
  void TypeSayData(const std::string& zText) { desktop.Type(zText); }

  /// Waits until the chip has received at least so many bytes, or exactly these.
  bool AwaitCount(std::size_t zCount);
  bool AwaitBytes(std::string_view zBytes);

  /// Waits for a colour of the port box: "FFFFFF", "00FF00" or "FF0000".
  bool AwaitPortColour(const std::string& zColour);

  /// Presses Done of the main window and waits for the program's end; its exit status.
  int Finish();

  Desktop desktop;
  TempFolder folder;
  std::unique_ptr<PtyChip> chip;
  std::unique_ptr<ChildProcess> loquitor;
  std::string mainWindow;
  std::string phraseWindow;
};

/// The controls that the stories press.
namespace place {
inline constexpr Place PhraseEditorButton{120, 120, 1995, 495};
inline constexpr Place EepromEditorButton{2190, 120, 1995, 495};
inline constexpr Place EventConfigButton{4260, 120, 1995, 495};
inline constexpr Place SynthButton{120, 690, 1995, 495};
inline constexpr Place DictionaryEditorButton{2190, 690, 1995, 495};
inline constexpr Place CommunicationFrame{120, 1290, 4815, 855};
inline constexpr Place PortBox{1200, 330, 435, 315};
inline constexpr Place TestButton{1800, 300, 1875, 315};
inline constexpr Place MainDone{5220, 1740, 975, 435};
inline constexpr Place SayDataFrame{60, 5880, 11565, 1365};
inline constexpr Place SayDataBox{120, 210, 8775, 1065};
inline constexpr Place SayIt{8970, 300, 1275, 255};
inline constexpr Place ViewCodes{10320, 300, 1155, 255};
inline constexpr Place PhraseShutUp{9330, 7410, 975, 435};
inline constexpr Place PhraseDone{10380, 7410, 975, 435};
inline constexpr Place VowelsFrame{2160, 60, 2175, 1665};
inline constexpr Place VowelIy{120, 240, 615, 255};
inline constexpr Place PausesFrame{60, 60, 2055, 1665};
inline constexpr Place Wait{1320, 360, 525, 255};
inline constexpr Place CodesCopy{3825, 4770, 1695, 435};
inline constexpr Place CodesDone{6120, 4770, 1155, 435};
inline constexpr Place DictionarySave{9060, 6000, 1245, 435};
}  // namespace place

}  // namespace loquitor::testing
