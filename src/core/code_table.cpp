#include "core/code_table.h"

#include <sstream>

#include "text/letters.h"
#include "text/number_text.h"

namespace loquitor {

namespace {

/// Mnemonics of consecutive codes, without their backslash.
struct CodeRun {
  std::int16_t firstCode;
  const char* names;
};

constexpr CodeRun CodeRuns[] = {
    {0, "P0 P1 P2 P3 P4 P5 P6 FAST SLOW"},
    {14, "STRESS RELAX WAIT"},
    {18, "SOFT"},
    {20, "VOLUME SPEED PITCH BEND PCTRL POUT REPEAT"},
    {28, "CALL PLAY DELAY RESET"},
    {128, "IY IH EY EH AY AX UX AW OH OW UH UW"},
    {140, "MM NE NO NGE NGO LE LO WW"},
    {148, "RR IYRR EYRR AXRR AWRR OWRR"},
    {154, "EYIY OHIY OWIY OHIH IYEH EHLE IYUW AXUW IHWW AYWW OWWW"},
    {165, "JH VV ZZ ZH DH"},
    {170, "BE BO EB OB DE DO ED OD GE GO EG OG"},
    {182, "CH HE HO WH FF SE SO SH TH"},
    {191, "TT TU TS KE KO EK OK PE PO"},
    {200, "R0 R1 R2 R3 R4 R5 R6 R7 R8 R9"},
    {210, "A0 A1 A2 A3 A4 A5 A6 A7 A8 A9"},
    {220, "B0 B1 B2 B3 B4 B5 B6 B7 B8 B9"},
    {230, "C0 C1 C2 C3 C4 C5 C6 C7 C8 C9"},
    {240, "D0 D1 D2 D3 D4 D5 D6 D7 D8 D9 D10 D11"},
    {252, "M0 M1 M2"},
};

constexpr int FirstNoteIndex = 301;
constexpr int NotesPerOctave = 12;
constexpr int OctaveStep = 20;
constexpr int OctaveCount = 3;
constexpr const char* NoteNames[NotesPerOctave] = {"C",  "C#", "D",  "D#", "E",  "F",
                                                   "F#", "G",  "G#", "A",  "A#", "B"};
/// In hertz. F#2 is the value in the chip's own table, not the rounded frequency.
constexpr std::uint8_t NotePitches[OctaveCount][NotesPerOctave] = {
    {33, 35, 37, 39, 41, 44, 46, 49, 52, 55, 58, 62},
    {65, 69, 73, 78, 82, 87, 93, 98, 104, 110, 117, 123},
    {131, 139, 147, 156, 165, 175, 185, 196, 208, 220, 233, 247},
};

}  // namespace

void CodeTable::BuildCodeTable() {
  for (const CodeRun& run : CodeRuns) {
    std::istringstream names(run.names);
    std::size_t code = static_cast<std::size_t>(run.firstCode);
    for (std::string name; names >> name; ++code) {
      entries_[code] = "\\" + name;
    }
  }
  for (int octave = 0; octave < OctaveCount; ++octave) {
    for (int position = 0; position < NotesPerOctave; ++position) {
      const int index = FirstNoteIndex + OctaveStep * octave + position;
      entries_[static_cast<std::size_t>(index)] =
          std::string("\\NT") + NoteNames[position] + std::to_string(octave + 1);
    }
  }
  indexes_.clear();
  for (std::int16_t index = 0; index < EntryCount; ++index) {
    const std::string& mnemonic = entries_[static_cast<std::size_t>(index)];
    if (!mnemonic.empty()) {
      indexes_.emplace(mnemonic, index);
    }
  }
}

std::int16_t CodeTable::GetCodeIndex(std::string_view zMnemonic) const {
  const auto found = indexes_.find(ToUpper(zMnemonic));
  return found == indexes_.end() ? NotFound : found->second;
}

std::string CodeTable::GetCodeMnemonic(std::uint8_t zCode) const {
  return entries_[zCode];
}

std::string CodeTable::TokenCodes(std::string_view zToken) const {
  const auto codes = [](std::initializer_list<int> zCodes) {
    return std::string(zCodes.begin(), zCodes.end());
  };
  if (zToken == "\\0") {
    return codes({0});
  }
  const double number = NumberAtStart(zToken.substr(1));
  if (number > 0) {
    return number <= 255 ? codes({static_cast<int>(number)}) : std::string();
  }
  const std::int16_t index = GetCodeIndex(zToken);
  if (index == NotFound) {
    return {};
  }
  return index < CodeCount ? codes({index}) : codes({chip_code::Pitch, GetNotePitch(index)});
}

std::uint8_t CodeTable::GetNotePitch(std::int16_t zNoteIndex) const {
  const int fromFirst = zNoteIndex - FirstNoteIndex;
  if (fromFirst < 0) {
    return 0;
  }
  const int octave = fromFirst / OctaveStep;
  const int position = fromFirst % OctaveStep;
  if (octave >= OctaveCount || position >= NotesPerOctave) {
    return 0;
  }
  return NotePitches[octave][position];
}

bool TakesValue(int zCode) {
  return (zCode >= 20 && zCode <= 26) || (zCode >= 28 && zCode <= 30);
}

}  // namespace loquitor
