#pragma once

#include <gmock/gmock.h>

#include <map>
#include <memory>
#include <string>

#include "tests/e2e/desktop.h"
#include "tests/e2e/pty_chip.h"
#include "tests/e2e/tested_program.h"

namespace loquitor::testing {

/// What the phrase editor's voice controls send before a phrase, at their defaults.
inline const std::string Prefix = "\x14\x60\x15\x72\x16\x58\x17\x05";
/// What Shut Up sends.
inline const std::string StopBytes("\\0RX\x1f\0", 6);
/// What Test Serial Connection sends.
inline const std::string TestBytes = "\x1f\\0VX";

inline const std::string MainTitle = "Quenlith Phrase Translator for Orvatone  V.1.4";
inline const std::string PhraseTitle = " Orvatone Phrase Editor";
inline const std::string CodesTitle = "Orvatone Codes";
inline const std::string EepromTitle = "Orvatone EEPROM Editor";
inline const std::string EventTitle = "Orvatone Event Configuration";
inline const std::string SynthTitle = "Orvatone Synth Control";
inline const std::string BaudRateTitle = "Orvatone Baud Rate and Detune";
inline const std::string DictionaryTitle = "Orvatone Dictionary Editor";

/// The middle of a control in the pixels of its window.
struct Spot {
  std::string title;  ///< of the window
  int x, y;
};

/// Codes as the codes viewer lists them.
std::string AsNumbers(const std::string& zCodes);

/// `zCount` copies of a text in a row.
std::string Repeated(const std::string& zText, std::size_t zCount);

/// The tested program in a real X server, in a folder of its own, with a pseudo-terminal as the
/// chip on port 1.
class LoquitorSession : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// A new chip in place of the one so far. Returns the device that the settings name for it.
  std::string ConnectChip();

  /// Adds to the end of the settings file, where the section of the ports is.
  void GivenSettings(const std::string& zSettings);

  void Start();

  /// The place of a control, by the name that it has in loquitor_session.cpp.
  static Spot At(const std::string& zName);

  void Click(const Spot& zSpot, int zTimes = 1);
  void Click(const std::string& zName) { Click(At(zName)); }
  void DoubleClick(const std::string& zName) { Click(At(zName), 2); }

  void Open(const Spot& zOpener, const std::string& zTitle);
  void OpenPhraseEditor() { Open(At("Phrase Editor"), PhraseTitle); }

  void CloseByDone(const std::string& zDone);
  void CloseByKey(const std::string& zTitle);

  std::string ViewedCodes();

  /// Replaces the text of a text box and leaves the box.
  void FillIn(const Spot& zBox, const std::string& zText);
  void FillIn(const std::string& zBox, const std::string& zText) { FillIn(At(zBox), zText); }

  /// Types Say Data into the phrase editor, whose box has the focus, and presses Say It.
  void Say(const std::string& zSayData);

  /// Waits until the chip has received as many bytes, and expects exactly these.
  void ExpectBytes(const std::string& zBytes);

  /// Waits until the bytes that the chip has received end with these, and expects that.
  void ExpectEnd(const std::string& zBytes);

  /// Waits until the port box has the colour "FFFFFF", "00FF00" or "FF0000". False when it does not
  /// get it.
  bool AwaitPortColour(const std::string& zColour);

  void Finish();

  Desktop desktop;
  TempFolder folder;
  TestedProgram program;
  std::unique_ptr<PtyChip> chip;
  std::unique_ptr<ChildProcess> loquitor;
  std::map<std::string, std::string> windows;  ///< the numbers of the opened windows, by title
};

}  // namespace loquitor::testing
