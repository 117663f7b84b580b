#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/e2e/desktop.h"
#include "tests/e2e/pty_chip.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {

/// What the phrase editor's voice controls send before a phrase, as they stand at first.
inline const std::string Prefix = "\x14\x60\x15\x72\x16\x58\x17\x05";
/// What Shut Up sends.
inline const std::string StopBytes("\\0RX\x1f\0", 6);
/// What Test Serial Connection sends.
inline const std::string TestBytes = "\x1f\\0VX";

/// Codes as the codes viewer lists them.
std::string AsNumbers(const std::string& zCodes);

/// A control by its place in twips: the window's own, or that of its frame and its place in it.
struct Place {
  int left, top, width, height;
};

inline const std::string MainTitle = "Quenlith Phrase Translator for Orvatone  V.1.4";
inline const std::string PhraseTitle = " Orvatone Phrase Editor";
inline const std::string CodesTitle = "Orvatone Codes";
inline const std::string EepromTitle = "Orvatone EEPROM Editor";
inline const std::string EventTitle = "Orvatone Event Configuration";
inline const std::string SynthTitle = "Orvatone Synth Control";
inline const std::string BaudRateTitle = "Orvatone Baud Rate and Detune";
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

  /// Opens an editor from a window and moves it below the main window; the editor's window, or ""
  /// with a failure when it does not come.
  std::string Open(const std::string& zOpener, const Place& zPlace, const std::string& zTitle);

  /// Opens the phrase editor from the main window.
  void OpenPhraseEditor();

  /// Presses View Codes and reads the list by way of the clipboard.
  std::string ViewedCodes();

  /// Puts a text into a text box in place of its own and leaves the box.
  void FillIn(const std::string& zWindow, const std::string& zText, const Place& zPlace,
              const Place& zFrame);

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
inline constexpr Place BaudRateButton{4260, 690, 1995, 495};
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
constexpr Place SlotNumber(int zSlot) {
  return {150 + zSlot / 8 * 6120, 150 + zSlot % 8 * 390, 450, 330};
}
constexpr Place SlotPhrase(int zSlot) {
  return {660 + zSlot / 8 * 6120, 150 + zSlot % 8 * 390, 5400, 330};
}
inline constexpr Place EepromWrite{7080, 3360, 2400, 435};
inline constexpr Place EepromDone{10935, 3360, 1245, 435};
inline constexpr Place EventsFrame{120, 120, 7680, 6495};
/// A control of an event's row: column 0 Play, 1 the phrase's number, 2 Clear, 3 Call, 4 Restart.
constexpr Place EventControl(int zRow, int zColumn) {
  return {2430 + zColumn * 1080, 810 + zRow * 330, 600, 300};
}
inline constexpr Place MiscellaneousFrame{120, 6735, 7680, 705};
inline constexpr Place ScpNode{1260, 285, 600, 300};
inline constexpr Place AutoSilence{2310, 285, 1800, 300};
inline constexpr Place InputStyleFrame{7920, 120, 3810, 1065};
inline constexpr Place OutputControlFrame{7920, 1305, 3810, 1410};
inline constexpr Place OutputStartupFrame{7920, 2835, 3810, 1410};
/// An option of a frame by its row and column.
constexpr Place Option(int zRow, int zColumn) {
  return {1185 + zColumn * 1275, 300 + zRow * 345, 1275, 285};
}
inline constexpr Place EventWrite{7920, 5895, 3810, 435};
inline constexpr Place EventDone{7920, 7005, 3810, 435};
inline constexpr Place MainsFrame{60, 60, 9255, 1095};
inline constexpr Place MasterVolume{1740, 300, 675, 285};
inline constexpr Place EnvelopeSine{7080, 780, 975, 195};
inline constexpr Place Oscillator1Frame{60 + 1980, 1200 + 240, 7095, 975};
inline constexpr Place FrequencyBox{1020, 300, 675, 285};
inline constexpr Place VolumeBox{1020, 600, 675, 285};
inline constexpr Place SoundName{1560, 7440, 1395, 345};
inline constexpr Place SoundLoad{3060, 7440, 1155, 375};
inline constexpr Place SoundSave{4260, 7440, 1155, 375};
inline constexpr Place SynthShutUp{6900, 7440, 1155, 375};
inline constexpr Place SynthDone{8160, 7440, 1155, 375};
}  // namespace place

}  // namespace loquitor::testing
