#include "ui/phrase/palette_table.h"

#include <span>

namespace loquitor {
namespace {

constexpr int MemberHeight = 255;

/// A member of a frame whose members are all of one size.
struct SoundRow {
  int index;
  const char* caption;
  const char* tooltip;
  int left;
  int top;
};

constexpr SoundRow Vowels[] = {
    {0, "IY", "See, Even, Feed", 120, 240},   {10, "UW", "Food, June", 1440, 240},
    {1, "IH", "Sit, Fix, Pin", 420, 510},     {9, "UH", "Book, Could, Should", 1140, 510},
    {2, "EY", "Hair, Gate, Beige", 120, 780}, {5, "AX", "Luck, Jump, Plus", 780, 780},
    {8, "OW", "Comb, Over, Hold", 1440, 780}, {3, "EH", "Met, Check, Red", 420, 1050},
    {7, "OH", "Hot, Clock, Fox", 1140, 1050}, {4, "AY", "Hat, Fast, Fan", 120, 1320},
    {32, "UX", "Blue, Food", 780, 1320},      {6, "AW", "Father, Fall", 1440, 1320},
};

constexpr SoundRow Diphthongs[] = {
    {25, "EYIY", "Gate, Ate, Ray", 120, 240},
    {29, "IYEH", "Yes, Yarn, Million", 870, 240},
    {31, "IYUW", "Cute, Few, Computer", 1620, 240},
    {35, "AYWW", "Our, Ouch, Owl", 2370, 240},
    {26, "OHIY", "Mice, Fight, White", 120, 510},
    {28, "OHIH", "Sky, Five, I", 870, 510},
    {33, "AXUW", "Brown, Clown, Thousand", 1620, 510},
    {36, "OWWW", "Go, Hello, Snow", 2370, 510},
    {27, "OWIY", "Boy, Toy, Voice", 120, 780},
    {30, "EHLE", "Saddle, Angle, Spell", 870, 780},
    {34, "IHWW", "Two, New, Zoo", 2370, 780},
};

constexpr SoundRow ResonateAndNasal[] = {
    {16, "LE", "Lake, Alarm, Lapel", 150, 240}, {12, "NE", "Nip, Danger, Thin", 780, 240},
    {14, "NGE", "Think, Ping", 1410, 240},      {17, "LO", "Clock, Plus, Hello", 150, 510},
    {13, "NO", "No, Snow, On", 780, 510},       {15, "NGO", "Hung, Song", 1410, 510},
    {18, "WW", "Wool, Sweat", 150, 780},        {11, "MM", "Milk, Famous, Broom", 780, 780},
};

constexpr SoundRow Rs[] = {
    {19, "RR", "Ray, Brain, Over", 150, 240},      {22, "AXRR", "Fir, Bird, Burn", 900, 240},
    {20, "IYRR", "Clear, Hear, Year", 150, 510},   {23, "AWRR", "Part, Farm, Yarn", 900, 510},
    {21, "EYRR", "Hair, Stair, Repair", 150, 780}, {24, "OWRR", "Corn, Four, Your", 900, 780},
};

constexpr SoundRow VoicedFricatives[] = {
    {37, "JH", "Dodge, Jet, Wedgery", 120, 240}, {38, "VV", "Vest, Even, Twelve", 780, 240},
    {39, "ZZ", "Zoo, Zap", 1440, 240},           {40, "ZH", "Azure, Treasure", 120, 510},
    {41, "DH", "There, That, This", 780, 510},
};

constexpr SoundRow VoicedStops[] = {
    {42, "BE", "Bear, Bird, Beed", 180, 240},   {46, "DE", "Deep, Date, Divide", 810, 240},
    {50, "GE", "Get, Gate, Guest,", 1440, 240}, {43, "BO", "Bone, Book Brown", 180, 510},
    {47, "DO", "Do, Dust, Dog", 810, 510},      {51, "GO", "Got, Glue, Goo", 1440, 510},
    {44, "EB", "Cab, Crib, Web", 180, 780},     {48, "ED", "Could, Bird", 810, 780},
    {52, "EG", "Peg, Wig", 1440, 780},          {45, "OB", "Bob, Sub, Tub", 180, 1050},
    {49, "OD", "Bud, Food", 810, 1050},         {53, "OG", "Dog, Hog", 1440, 1050},
};

constexpr SoundRow VoicelessStops[] = {
    {66, "KE", "Can't, Clown, Key", 120, 240},    {63, "TT", "Part, Little, Sit", 810, 240},
    {70, "PE", "People, Computer", 1500, 240},    {67, "KO", "Comb, Quick, Fox", 120, 510},
    {64, "TU", "To, Talk, Ten", 810, 510},        {71, "PO", "Pow, Copy", 1500, 510},
    {68, "EK", "Speak, Task", 120, 780},          {65, "TS", "Parts, Costs, Robots", 810, 780},
    {69, "OK", "Book, Took, October", 120, 1050},
};

constexpr SoundRow VoicelessFricatives[] = {
    {55, "HE", "Help, Hand, Hair", 150, 240},      {59, "SE", "See, Vest, Plus", 750, 240},
    {61, "SH", "Ship, Fiction, Leash", 1350, 240}, {54, "CH", "Church, Feature, March", 1950, 240},
    {56, "HO", "Hoe, Hot, Hug", 150, 540},         {60, "SO", "So, Sweat", 750, 540},
    {62, "TH", "Thin, month", 1350, 540},          {58, "FF", "Food, Effort, Off", 1950, 540},
    {57, "WH", "who, whale, White", 150, 840},
};

/// A row of numbered sound effects, captions "R0" and so on.
struct EffectRow {
  const char* letter;
  int firstIndex;
  int count;
  int top;
};

constexpr EffectRow EffectRows[] = {
    {"R", 72, 10, 240},   {"A", 82, 10, 510},   {"B", 92, 10, 780},
    {"C", 102, 10, 1050}, {"D", 112, 12, 1320},
};

constexpr SoundRow SingleEffects[] = {
    {124, "M0", "Sonar Ping", 7080, 420},
    {125, "M1", "Pistol Shot", 7080, 690},
    {126, "M2", "WOW effect", 7080, 960},
};

/// The three octaves of a note.
struct NoteRow {
  const char* letter;
  std::array<int, 3> indexes;
};

constexpr NoteRow NoteRows[] = {
    {"C", {196, 184, 175}},  {"C#", {191, 179, 170}}, {"D", {186, 174, 165}},
    {"D#", {181, 169, 160}}, {"E", {176, 164, 152}},  {"F", {171, 159, 147}},
    {"F#", {166, 151, 197}}, {"G", {161, 146, 192}},  {"G#", {153, 195, 187}},
    {"A", {148, 190, 182}},  {"A#", {194, 185, 177}}, {"B", {189, 180, 172}},
};

constexpr PaletteMember ControlCodes[] = {
    {128, "P0", "Frame14", {120, 360, 465, 255}, "0ms Pause /wout transition"},
    {129, "P1", "Frame14", {120, 630, 465, 255}, "100ms Pause /wout transition"},
    {130, "P2", "Frame14", {120, 900, 465, 255}, "300ms Pause /wout transition"},
    {131, "P3", "Frame14", {120, 1170, 465, 255}, "700ms Pause /wout transition"},
    {132, "P4", "Frame14", {720, 360, 465, 255}, "10ms Pause /w transition"},
    {133, "P5", "Frame14", {720, 630, 465, 255}, "36ms Pause /w transition"},
    {134, "P6", "Frame14", {720, 900, 465, 255}, "60ms Pause /w transition"},
    {139, "Wait", "Frame14", {1320, 360, 525, 255}, "Stop sound until restarted."},
    {158,
     "Delay",
     "Frame14",
     {720, 1170, 645, 255},
     "Delay 10xMS before playing the next sound.",
     "TxtDelay"},
    {135, "Fast", "Frame11", {90, 360, 585, 255}, "Play the Next Sound at 1 1/2 speed"},
    {136, "Slow", "Frame11", {90, 660, 585, 255}, "Play the Next Sound at 1/2 speed"},
    {142, "Stress", "Frame11", {720, 360, 645, 255}, "Play the Next Sound with Stress."},
    {143, "Relax", "Frame11", {720, 660, 645, 255}, "Play the Next Sound Relaxed."},
    {154,
     "Repeat",
     "Frame11",
     {90, 1110, 795, 255},
     "Repeat the following Sound x Times",
     "txtRepeat"},
    {141, "Soft", "Frame11", {90, 1530, 825, 255}, "Play the Next Sound Soft."},
    {156, "Call", "Frame16", {90, 300, 765, 255}, "Call EEPROM Phrase x.", "txtCall"},
    {127, "Play", "Frame16", {90, 630, 765, 255}, "Play EEPROM Phrase x.", "txtPlay"},
    {137,
     "PCtrl",
     "Frame16",
     {90, 960, 765, 255},
     "Set the Output Pin's Control to x.",
     "txtPCtrl"},
    {138,
     "POut",
     "Frame16",
     {90, 1290, 765, 255},
     "Set the Output Pin's Output state to x.",
     "txtPOut"},
    {140, "Reset", "Frame9", {5880, 1140, 645, 255}, "Reset all controls back to defaults"},
};

/// Fills the table from the rows above.
class PaletteBuilder {
 public:
  constexpr void AddSounds(const char* zFrame, int zWidth, std::span<const SoundRow> zRows) {
    for (const SoundRow& row : zRows) {
      Add({row.index, row.caption, zFrame, {row.left, row.top, zWidth, MemberHeight}, row.tooltip});
    }
  }

  constexpr void AddEffects(const char* zFrame, const EffectRow& zRow) {
    for (int number = 0; number < zRow.count; ++number) {
      PaletteCaption caption(zRow.letter);
      if (number >= 10) {
        caption.Append("1");
      }
      const char digit = static_cast<char>('0' + number % 10);
      caption.Append({&digit, 1});
      Add({zRow.firstIndex + number,
           caption,
           zFrame,
           {1050 + 570 * number, zRow.top, 525, MemberHeight}});
    }
  }

  constexpr void AddNotes(const char* zFrame, const NoteRow& zRow, int zPosition) {
    for (std::size_t octave = 0; octave < zRow.indexes.size(); ++octave) {
      const char digit = static_cast<char>('1' + octave);
      PaletteCaption caption("NT");
      caption.Append(zRow.letter).Append({&digit, 1});
      Add({zRow.indexes[octave],
           caption,
           zFrame,
           {60 + 660 * static_cast<int>(octave), 630 + 270 * zPosition, 615, MemberHeight}});
    }
  }

  constexpr void Add(const PaletteMember& zMember) { members_[count_++] = zMember; }

  /// The table, which must be full.
  constexpr std::array<PaletteMember, PaletteMemberCount> Take() const {
    return count_ == PaletteMemberCount ? members_ : throw "the palette lacks members";
  }

 private:
  std::array<PaletteMember, PaletteMemberCount> members_{};
  std::size_t count_ = 0;
};

constexpr std::array<PaletteMember, PaletteMemberCount> BuildPalette() {
  PaletteBuilder builder;
  builder.AddSounds("Frame1", 615, Vowels);
  builder.AddSounds("Frame4", 705, Diphthongs);
  builder.AddSounds("Frame3", 585, ResonateAndNasal);
  builder.AddSounds("Frame12", 705, Rs);
  builder.AddSounds("Frame2", 615, VoicedFricatives);
  builder.AddSounds("Frame5", 585, VoicedStops);
  builder.AddSounds("Frame6", 645, VoicelessStops);
  builder.AddSounds("Frame7", 555, VoicelessFricatives);
  for (const EffectRow& row : EffectRows) {
    builder.AddEffects("Frame8", row);
  }
  builder.AddSounds("Frame8", 465, SingleEffects);
  int position = 0;
  for (const NoteRow& row : NoteRows) {
    builder.AddNotes("Frame13", row, position++);
  }
  for (const PaletteMember& member : ControlCodes) {
    builder.Add(member);
  }
  return builder.Take();
}

constexpr std::string_view NotePrefix = "NT";

}  // namespace

constexpr std::array<PaletteMember, PaletteMemberCount> PaletteTable = BuildPalette();

std::string MnemonicOf(const PaletteMember& zMember) {
  return "\\" + std::string(zMember.caption.Text());
}

std::string TooltipOf(const PaletteMember& zMember) {
  const std::string_view caption = zMember.caption.Text();
  if (!caption.starts_with(NotePrefix)) {
    return zMember.tooltip;
  }
  return "Set the Pitch to the Frequency for " + std::string(caption.substr(NotePrefix.size()));
}

}  // namespace loquitor
