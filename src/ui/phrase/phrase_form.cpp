#include "ui/phrase/phrase_form.h"

namespace loquitor {
namespace {

using enum ControlKind;

constexpr char SayTooltip[] = "Send the sound codes in the Say Data window to the Orvatone.";
constexpr char ViewTooltip[] = "View the sound codes in the Say Data window.";
constexpr char LoadTooltip[] = "Load the dictionary words into the Say Data window.";

// clang-format off
constexpr ControlRow RowsBeforeVoice[] = {
    {Frame, "Frame14", "", "Pauses", {60, 60, 2055, 1665}},
    BoxRow("TxtDelay", "Frame14", "100", {1380, 1170, 435, 285}, "Value of Delay"),
    {Frame, "Frame1", "", "Vowels", {2160, 60, 2175, 1665}},
    {Frame, "Frame4", "", "Diphthongs", {4380, 60, 3225, 1125}},
    {Frame, "Frame3", "", "Resonate && Nasal", {7650, 60, 2175, 1125}},
    {Frame, "Frame12", "", "R's", {9870, 60, 1755, 1125}},
    {Frame, "Frame2", "", "Voiced Fricatives", {2160, 1740, 2175, 885}},
    {Frame, "Frame5", "", "Voiced Stops", {4380, 1200, 2175, 1425}},
    {Frame, "Frame6", "", "Voiceless Stops", {6600, 1200, 2295, 1425}},
    {Frame, "Frame7", "", "Voiceless Fricatives", {8940, 1200, 2685, 1425}},
    {Frame, "Frame13", "", "Musical Scale", {60, 1740, 2055, 4125}},
    {Label, "Label7", "Frame13", "Octive1", {60, 330, 555, 195}},
    {Label, "Label8", "Frame13", "Octive2", {720, 330, 555, 195}},
    {Label, "Label9", "Frame13", "Octive3", {1380, 330, 555, 195}},
    {Frame, "Frame8", "", "Misc Sounds", {2160, 2640, 7935, 1695}},
    {Label, "Label3", "Frame8", "Robot:", {30, 240, 975, 255}},
    {Label, "Label4", "Frame8", "Alarms:", {30, 510, 975, 255}},
    {Label, "Label5", "Frame8", "Beeps:", {30, 780, 975, 255}},
    {Label, "Label2", "Frame8", "Bio Sounds:", {30, 1050, 975, 255}},
    {Label, "Label6", "Frame8", "Touch Tone:", {30, 1320, 975, 255}},
    {Frame, "Frame16", "", "Commands", {10140, 2640, 1455, 1695}},
    BoxRow("txtCall", "Frame16", "0", {900, 300, 405, 285}, "Value of Call"),
    BoxRow("txtPlay", "Frame16", "0", {900, 630, 405, 285}, "Value of Play"),
    BoxRow("txtPCtrl", "Frame16", "7", {900, 960, 405, 285}, "Value of PCtrl"),
    BoxRow("txtPOut", "Frame16", "7", {900, 1290, 405, 285}, "Value of POut"),
    {Frame, "Frame9", "", "Controls", {2160, 4350, 7935, 1515}},
};

constexpr ControlRow RowsAfterVoice[] = {
    {CheckBox, "chkApplyControlsBeforeSounds", "Frame9",
     "Apply Controls Before Playing Individual Sounds", {5580, 180, 2235, 435}},
    {CheckBox, "chkApplyControlsBeforeSayData", "Frame9",
     "Apply Controls Before Playing 'Say Data'", {5580, 660, 2115, 375}},
    {Frame, "Frame11", "", "Modifiers", {10140, 4350, 1455, 1515}},
    BoxRow("txtRepeat", "Frame11", "5", {930, 1080, 435, 285}, "Value of Repeat"),
    {Frame, "Frame10", "", "Say Data", {60, 5880, 11565, 1365}},
    {TextArea, "txtSayData", "Frame10", "", {120, 210, 8775, 1065}, "", "Say Data"},
    ButtonRow("bntSayIt", "Frame10", "Say It", {8970, 300, 1275, 255}, SayTooltip),
    ButtonRow("btnSaySelection", "Frame10", "Say Selection", {8970, 600, 1275, 255}, SayTooltip),
    ButtonRow("btnClear", "Frame10", "Clear Say Data", {8970, 900, 1275, 255},
     "Clear the Say Data window."),
    ButtonRow("btnCodes", "Frame10", "View Codes", {10320, 300, 1155, 255}, ViewTooltip),
    ButtonRow("Command2", "Frame10", "View Codes for Selection", {10320, 600, 1155, 555},
     ViewTooltip),
    {Frame, "Frame15", "", "Dictionary", {60, 7260, 8865, 615}},
    BoxRow("txtDict", "Frame15", "", {120, 240, 1995, 285}, "Dictionary words"),
    ButtonRow("cmdLoadOver", "Frame15", "Load Overwrite", {2190, 240, 1275, 285}, LoadTooltip),
    ButtonRow("cmdLoadInsert", "Frame15", "Load Insert", {3510, 240, 1035, 285}, LoadTooltip),
    ButtonRow("btnNextWord", "Frame15", "Load && Say  Next Word", {4620, 240, 1905, 285},
     "Find and load the next word in the Dictionary"),
    {CheckBox, "chkWith", "Frame15", "With Data", {6660, 210, 1095, 195}},
    {CheckBox, "chkWithout", "Frame15", "Without Data", {6660, 450, 1395, 195}},
    ButtonRow("cmdSave", "Frame15", "Save", {8130, 240, 525, 285},
     "Save the Say Data to the Dictionary."),
    BoxRow("txtfindwith", "Frame15", "", {8970, 270, 615, 285}, "Codes to find"),
    ButtonRow("btnShutUp", "", "Shut Up", {9330, 7410, 975, 435}, "Stop the Orvatone now."),
    ButtonRow("btnDone", "", "Done", {10380, 7410, 975, 435}),
};
// clang-format on

}  // namespace

constexpr std::span<const ControlRow> PhraseRowsBeforeVoice = RowsBeforeVoice;
constexpr std::span<const ControlRow> PhraseRowsAfterVoice = RowsAfterVoice;

}  // namespace loquitor
