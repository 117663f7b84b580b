#include "ui/synth/synth_form.h"

#include <string>
#include <vector>

#include "core/synth_registers.h"
#include "ui/controls/form.h"

namespace loquitor {

namespace {

using enum ControlKind;

/// Different from every quiet value, so that opening the window writes them all.
constexpr int StartValue = 1;

constexpr BarRange MasterVolume{synth::MaxMasterVolume, 4, StartValue};
constexpr BarRange EnvelopeFrequency{synth::MaxEnvelopeFrequency, 22, StartValue};
constexpr BarRange Distortion{synth::MaxDistortion, 16, StartValue};
constexpr BarRange Frequency{synth::MaxFrequency, 22, StartValue};
constexpr BarRange Volume{synth::MaxVolume, 4, StartValue};
constexpr BarRange Adjustment{200, 1, 100};

constexpr ControlRow Groups[] = {
    PlainRow(Frame, "FrameOsc", "", "Mains", {60, 60, 9255, 1095}, 7),
    PlainRow(Frame, "Frame1", "", "Tone Generators", {60, 1200, 9255, 3375}),
    PlainRow(Frame, "FrameOsc", "", "Noise Generators", {60, 4620, 9255, 2775}, 6),
    PlainRow(Frame, "Frame2", "Frame1", "Tools", {120, 660, 1755, 2595}),
};

constexpr ControlRow Mains[] = {
    PlainRow(RightLabel, "lbl1", "FrameOsc(7)", "Master Volume:", {120, 300, 1515, 255}, 7),
    BoxRow("txtLevel", "FrameOsc(7)", "", {1740, 300, 675, 285}, "Master Volume", 1),
    BarRow("scLevel", "FrameOsc(7)", {2460, 300, 4335, 255}, MasterVolume, "Master Volume", 1),
    PlainRow(RightLabel, "lbl1", "FrameOsc(7)", "Envelope Frequency:", {120, 660, 1515, 255}, 0),
    BoxRow("txtEnvFreq", "FrameOsc(7)", "", {1740, 660, 675, 285}, "Envelope Frequency"),
    BarRow("scEnvolopeFreq", "FrameOsc(7)", {2460, 660, 4335, 255}, EnvelopeFrequency,
           "Envelope Frequency"),
    PlainRow(CentredLabel, "lbl1", "FrameOsc(7)", "Envelope Type:", {7200, 240, 1695, 195}, 8),
    PlainRow(OptionButton, "Option1", "FrameOsc(7)", "Saw", {7080, 540, 975, 195}, 0),
    PlainRow(OptionButton, "Option1", "FrameOsc(7)", "Sine", {7080, 780, 975, 195}, 1),
    PlainRow(OptionButton, "Option1", "FrameOsc(7)", "Triangle", {8100, 540, 975, 195}, 2),
    PlainRow(OptionButton, "Option1", "FrameOsc(7)", "Square", {8100, 780, 975, 195}, 3),
};

constexpr ControlRow Tones[] = {
    PlainRow(CheckBox, "Check2", "Frame1", "Enveloped", {780, 360, 1095, 195}, 1),
    ButtonRow("Command1", "Frame2", "Harmonise", {240, 300, 1275, 255}),
    PlainRow(CentredLabel, "Label4", "Frame2", "H-Freq:", {300, 720, 555, 195}),
    BoxRow("txtHFreq", "Frame2", "110", {900, 660, 615, 285}, "H-Freq"),
    PlainRow(HorizontalLine, "Line1", "Frame2", "", {0, 1020, 1740, 15}),
    PlainRow(CentredLabel, "Label5", "Frame2", "Freq Adj", {420, 1200, 915, 195}),
    ButtonRow("Command3", "Frame2", "Z", {1440, 1200, 255, 255}, "", "Z (Freq Adj)"),
    BarRow("scFreqAdjTone", "Frame2", {60, 1500, 1635, 255}, Adjustment, "Freq Adj"),
    PlainRow(HorizontalLine, "Line2", "Frame2", "", {0, 1800, 1740, 15}),
    PlainRow(CentredLabel, "Label2", "Frame2", "Volume Adj", {420, 1980, 915, 195}),
    ButtonRow("Command2", "Frame2", "Z", {1440, 1980, 255, 255}, "", "Z (Volume Adj)"),
    BarRow("scVolAdjTone", "Frame2", {60, 2280, 1635, 255}, Adjustment, "Volume Adj"),
};

constexpr ControlRow Noise[] = {
    PlainRow(CheckBox, "Check2", "FrameOsc(6)", "One Half Enveloped", {180, 420, 1155, 375}, 0),
    PlainRow(RightLabel, "lbl1", "FrameOsc(6)", "Distortion:", {2100, 300, 795, 255}, 6),
    BoxRow("txtLevel", "FrameOsc(6)", "", {3000, 300, 675, 285}, "Distortion", 0),
    BarRow("scLevel", "FrameOsc(6)", {3720, 300, 5175, 255}, Distortion, "Distortion", 0),
};

constexpr ControlRow Bottom[] = {
    PlainRow(RightLabel, "Label3", "", "Sound:", {60, 7500, 1455, 255}),
    BoxRow("txtSound", "", "", {1560, 7440, 1395, 345}, "Sound"),
    ButtonRow("btnLoad", "", "Load", {3060, 7440, 1155, 375}),
    ButtonRow("btnSave", "", "Save", {4260, 7440, 1155, 375}),
    ButtonRow("btnShutUp", "", "Shut Up", {6900, 7440, 1155, 375}, "Stop the Orvatone now."),
    ButtonRow("btnDone", "", "Done", {8160, 7440, 1155, 375}),
};

/// Where the oscillators are: the tone generators in one group, the noise generators in another.
struct OscillatorPlace {
  const char* parent;
  int top;
};
constexpr OscillatorPlace OscillatorPlaces[synth::OscillatorCount] = {
    {"Frame1", 240},      {"Frame1", 1260},      {"Frame1", 2280},
    {"FrameOsc(6)", 660}, {"FrameOsc(6)", 1680},
};

/// Adds the controls of oscillator `zIndex`, 1 to 5.
void AddOscillator(Form& zForm, int zIndex) {
  const OscillatorPlace& place = OscillatorPlaces[zIndex - 1];
  const std::string group = "FrameOsc(" + std::to_string(zIndex) + ")";
  const std::string caption = "Oscillator #" + std::to_string(zIndex);
  const std::string frequency = caption + " Frequency";
  const std::string volume = caption + " Volume";
  const ControlRow rows[] = {
      PlainRow(Frame, "FrameOsc", place.parent, caption.c_str(), {1980, place.top, 7095, 975},
               zIndex),
      PlainRow(RightLabel, "lbl1", group.c_str(), "Frequency:", {120, 300, 795, 255}, zIndex),
      BoxRow("txtFreq", group.c_str(), "", {1020, 300, 675, 285}, frequency.c_str(), zIndex),
      BarRow("scFreq", group.c_str(), {1740, 300, 5175, 255}, Frequency, frequency.c_str(), zIndex),
      PlainRow(RightLabel, "Label1", group.c_str(), "Volume:", {120, 600, 795, 255}, zIndex),
      BoxRow("txtVol", group.c_str(), "", {1020, 600, 675, 285}, volume.c_str(), zIndex),
      BarRow("scVol", group.c_str(), {1740, 600, 5175, 255}, Volume, volume.c_str(), zIndex),
  };
  zForm.Add(rows);
}

/// The value boxes (prefix "txt") or the bars ("sc") in tab order, which is the same for both.
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
