#include "ui/synth/synth_form.h"

#include <string>
#include <vector>

#include "ui/synth/synth_registers.h"

namespace loquitor {

namespace {

using enum ControlKind;

/// A control without a range, a member of an indexed group where `zIndex` is given.
constexpr ControlRow Plain(ControlKind zKind, const char* zName, const char* zParent,
                           const char* zCaption, TwipRect zPlace, int zIndex = -1) {
  return {zKind, zName, zParent, zCaption, zPlace, "", "", 0, 1, 0, zIndex};
}

constexpr ControlRow Box(const char* zName, const char* zParent, const char* zText, TwipRect zPlace,
                         const char* zAccessibleName, int zIndex = -1) {
  return {TextBox, zName, zParent, zText, zPlace, "", zAccessibleName, 0, 1, 0, zIndex};
}

struct Range {
  int maximum;
  int page;
  int value = 1;  ///< away from every quiet value, so that opening writes them all
};

constexpr ControlRow Bar(const char* zName, const char* zParent, TwipRect zPlace, Range zRange,
                         const char* zAccessibleName, int zIndex = -1) {
  return {ScrollBar,       zName,          zParent,     "",           zPlace, "",
          zAccessibleName, zRange.maximum, zRange.page, zRange.value, zIndex};
}

constexpr Range MasterVolume{synth::MaxMasterVolume, 4};
constexpr Range EnvelopeFrequency{synth::MaxEnvelopeFrequency, 22};
constexpr Range Distortion{synth::MaxDistortion, 16};
constexpr Range Frequency{synth::MaxFrequency, 22};
constexpr Range Volume{synth::MaxVolume, 4};
constexpr Range Adjustment{200, 1, 100};

constexpr ControlRow Groups[] = {
    Plain(Frame, "FrameOsc", "", "Mains", {60, 60, 9255, 1095}, 7),
    Plain(Frame, "Frame1", "", "Tone Generators", {60, 1200, 9255, 3375}),
    Plain(Frame, "FrameOsc", "", "Noise Generators", {60, 4620, 9255, 2775}, 6),
    Plain(Frame, "Frame2", "Frame1", "Tools", {120, 660, 1755, 2595}),
};

constexpr ControlRow Mains[] = {
    Plain(RightLabel, "lbl1", "FrameOsc(7)", "Master Volume:", {120, 300, 1515, 255}, 7),
    Box("txtLevel", "FrameOsc(7)", "", {1740, 300, 675, 285}, "Master Volume", 1),
    Bar("scLevel", "FrameOsc(7)", {2460, 300, 4335, 255}, MasterVolume, "Master Volume", 1),
    Plain(RightLabel, "lbl1", "FrameOsc(7)", "Envelope Frequency:", {120, 660, 1515, 255}, 0),
    Box("txtEnvFreq", "FrameOsc(7)", "", {1740, 660, 675, 285}, "Envelope Frequency"),
    Bar("scEnvolopeFreq", "FrameOsc(7)", {2460, 660, 4335, 255}, EnvelopeFrequency,
        "Envelope Frequency"),
    Plain(CentredLabel, "lbl1", "FrameOsc(7)", "Envelope Type:", {7200, 240, 1695, 195}, 8),
    Plain(OptionButton, "Option1", "FrameOsc(7)", "Saw", {7080, 540, 975, 195}, 0),
    Plain(OptionButton, "Option1", "FrameOsc(7)", "Sine", {7080, 780, 975, 195}, 1),
    Plain(OptionButton, "Option1", "FrameOsc(7)", "Triangle", {8100, 540, 975, 195}, 2),
    Plain(OptionButton, "Option1", "FrameOsc(7)", "Square", {8100, 780, 975, 195}, 3),
};

constexpr ControlRow Tones[] = {
    Plain(CheckBox, "Check2", "Frame1", "Enveloped", {780, 360, 1095, 195}, 1),
    Plain(Button, "Command1", "Frame2", "Harmonise", {240, 300, 1275, 255}),
    Plain(CentredLabel, "Label4", "Frame2", "H-Freq:", {300, 720, 555, 195}),
    Box("txtHFreq", "Frame2", "110", {900, 660, 615, 285}, "H-Freq"),
    Plain(HorizontalLine, "Line1", "Frame2", "", {0, 1020, 1740, 15}),
    Plain(CentredLabel, "Label5", "Frame2", "Freq Adj", {420, 1200, 915, 195}),
    {Button, "Command3", "Frame2", "Z", {1440, 1200, 255, 255}, "", "Z (Freq Adj)"},
    Bar("scFreqAdjTone", "Frame2", {60, 1500, 1635, 255}, Adjustment, "Freq Adj"),
    Plain(HorizontalLine, "Line2", "Frame2", "", {0, 1800, 1740, 15}),
    Plain(CentredLabel, "Label2", "Frame2", "Volume Adj", {420, 1980, 915, 195}),
    {Button, "Command2", "Frame2", "Z", {1440, 1980, 255, 255}, "", "Z (Volume Adj)"},
    Bar("scVolAdjTone", "Frame2", {60, 2280, 1635, 255}, Adjustment, "Volume Adj"),
};

constexpr ControlRow Noise[] = {
    Plain(CheckBox, "Check2", "FrameOsc(6)", "One Half Enveloped", {180, 420, 1155, 375}, 0),
    Plain(RightLabel, "lbl1", "FrameOsc(6)", "Distortion:", {2100, 300, 795, 255}, 6),
    Box("txtLevel", "FrameOsc(6)", "", {3000, 300, 675, 285}, "Distortion", 0),
    Bar("scLevel", "FrameOsc(6)", {3720, 300, 5175, 255}, Distortion, "Distortion", 0),
};

constexpr ControlRow Bottom[] = {
    Plain(RightLabel, "Label3", "", "Sound:", {60, 7500, 1455, 255}),
    Box("txtSound", "", "", {1560, 7440, 1395, 345}, "Sound"),
    Plain(Button, "btnLoad", "", "Load", {3060, 7440, 1155, 375}),
    Plain(Button, "btnSave", "", "Save", {4260, 7440, 1155, 375}),
    {Button, "btnShutUp", "", "Shut Up", {6900, 7440, 1155, 375}, "Stop the Orvatone now."},
    Plain(Button, "btnDone", "", "Done", {8160, 7440, 1155, 375}),
};

/// Where the oscillators stand: the tone generators in one group, the noise generators in another.
struct OscillatorPlace {
  const char* parent;
  int top;
};
constexpr OscillatorPlace OscillatorPlaces[synth::OscillatorCount] = {
    {"Frame1", 240},      {"Frame1", 1260},      {"Frame1", 2280},
    {"FrameOsc(6)", 660}, {"FrameOsc(6)", 1680},
};

/// The one description of an oscillator, 1 to 5.
void AddOscillator(Form& zForm, int zIndex) {
  const OscillatorPlace& place = OscillatorPlaces[zIndex - 1];
  const std::string group = "FrameOsc(" + std::to_string(zIndex) + ")";
  const std::string caption = "Oscillator #" + std::to_string(zIndex);
  const std::string frequency = caption + " Frequency";
  const std::string volume = caption + " Volume";
  const ControlRow rows[] = {
      Plain(Frame, "FrameOsc", place.parent, caption.c_str(), {1980, place.top, 7095, 975}, zIndex),
      Plain(RightLabel, "lbl1", group.c_str(), "Frequency:", {120, 300, 795, 255}, zIndex),
      Box("txtFreq", group.c_str(), "", {1020, 300, 675, 285}, frequency.c_str(), zIndex),
      Bar("scFreq", group.c_str(), {1740, 300, 5175, 255}, Frequency, frequency.c_str(), zIndex),
      Plain(RightLabel, "Label1", group.c_str(), "Volume:", {120, 600, 795, 255}, zIndex),
      Box("txtVol", group.c_str(), "", {1020, 600, 675, 285}, volume.c_str(), zIndex),
      Bar("scVol", group.c_str(), {1740, 600, 5175, 255}, Volume, volume.c_str(), zIndex),
  };
  zForm.Add(rows);
}

/// The value boxes, or the bars, in the order in which both are reached by Tab.
std::vector<QString> InTabOrder(const QString& zPrefix, const QString& zEnvelopeFrequency) {
  std::vector<QString> names;
  const auto add = [&](const char* zKind, int zIndex) {
    names.push_back(zPrefix + Indexed(zKind, zIndex));
  };
  add("Level", 1);
  names.push_back(zPrefix + zEnvelopeFrequency);
  for (int index = 1; index <= synth::OscillatorCount; ++index) {
    if (index == synth::ToneCount + 1) {
      add("Level", 0);
    }
    add("Freq", index);
    add("Vol", index);
  }
  return names;
}

std::vector<QString> TabOrder() {
  std::vector<QString> names = InTabOrder("txt", "EnvFreq");
  for (const QString& bar : InTabOrder("sc", "EnvolopeFreq")) {
    names.push_back(bar);
  }
  for (const char* name :
       {"btnShutUp", "btnDone", "Option1(0)", "Option1(1)", "Option1(2)", "Option1(3)", "Check2(1)",
        "Check2(0)", "txtSound", "btnLoad", "btnSave", "Command2", "scVolAdjTone", "Command1",
        "txtHFreq", "Command3", "scFreqAdjTone"}) {
    names.push_back(QLatin1String(name));
  }
  return names;
}

}  // namespace

void BuildSynthForm(Form& zForm) {
  zForm.Add(Groups);
  zForm.Add(Mains);
  zForm.Add(Tones);
  zForm.Add(Noise);
  for (int index = 1; index <= synth::OscillatorCount; ++index) {
    AddOscillator(zForm, index);
  }
  zForm.Add(Bottom);
  zForm.SetTabOrder(TabOrder());
}

}  // namespace loquitor
