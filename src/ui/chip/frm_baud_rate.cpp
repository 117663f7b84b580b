#include "ui/chip/frm_baud_rate.h"

#include <algorithm>
#include <array>

#include "line/scp.h"
#include "ui/chip/detune.h"
#include "ui/controls/code_page.h"
#include "ui/controls/text_box.h"

namespace loquitor {
namespace {

constexpr std::array<const char*, 4> RateTexts{"2400", "4800", "9600", "19200"};
constexpr int FirstRateIndex = 1;

constexpr TwipSize ClientSize{5700, 4065};

constexpr ControlRow Frames[] = {
    PlainRow(ControlKind::Frame, "Frame1", "", "Buad Rate", {120, 120, 5460, 2430}),
    PlainRow(ControlKind::Frame, "Frame2", "", "Chip Detune", {120, 2640, 5460, 750}),
};

constexpr ControlRow RateControls[] = {
    PlainRow(ControlKind::Label, "Label1", "Frame1",
             "To set the Baud Rate, the Orvatone must be set to Baud Rate Configure Mode at which "
             "time, a Sync Character is sent.  See the Orva Tone Manual for more details.",
             {1695, 300, 3585, 1500}),
    ButtonRow("btnSendSyncChar", "Frame1", "Send Sync Character", {3015, 1875, 2265, 435}),
};

constexpr ControlRow DetuneControls[] = {
    PlainRow(ControlKind::Label, "Label2", "Frame2", "Detune:", {180, 330, 750, 255}),
    {ControlKind::TextBox,
     "txtClockAdj",
     "Frame2",
     "&HFF",
     {945, 270, 975, 315},
     "One byte: &H (with a capital H), then hexadecimal digits, from &H0 to &HFF.\n"
     "Anything else sends nothing.",
     "Detune value"},
    ButtonRow("btnSendDetuneValue", "Frame2", "Send Detune Value", {3015, 210, 2265, 435}),
    ButtonRow("btnDone", "", "Done", {3135, 3510, 2265, 435}),
};

ControlRow RateRow(int zIndex) {
  return PlainRow(ControlKind::OptionButton, "Option1", "Frame1",
                  RateTexts[static_cast<std::size_t>(zIndex - FirstRateIndex)],
                  {240, 300 + (zIndex - FirstRateIndex) * 375, 1200, 285}, zIndex);
}

}  // namespace

frmBaudRate::frmBaudRate(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Baud Rate and Detune"), ClientSize),
      context_(zContext),
      form_(this),
      rates_(this) {
  AddControls();
  connect(&rates_, &OptionGroup::Click, this, &frmBaudRate::Option1_Click);
  form_.OnClick("btnSendSyncChar", this, &frmBaudRate::btnSendSyncChar_Click);
  form_.OnClick("btnSendDetuneValue", this, &frmBaudRate::btnSendDetuneValue_Click);
  form_.OnClick("btnDone", this, &frmBaudRate::close);
}

void frmBaudRate::AddControls() {
  form_.Add(Frames);
  for (int index = FirstRateIndex; index < FirstRateIndex + int{RateTexts.size()}; ++index) {
    form_.Add(RateRow(index));
    rates_.Add(form_.Get<OptionButton>(Indexed("Option1", index)), index);
  }
  form_.Add(RateControls);
  form_.Add(DetuneControls);
}

void frmBaudRate::Load() {
  const std::string stored = context_.settings.GetIniValue("Serial", "BaudRate", "9600");
  const auto* const rate = std::find(RateTexts.begin(), RateTexts.end(), stored);
  if (rate != RateTexts.end()) {
    rates_.Choose(FirstRateIndex + static_cast<int>(rate - RateTexts.begin()));
  }
}

void frmBaudRate::Option1_Click(int zIndex) {
  context_.sender.CloseSerialPort();
  context_.settings.SaveIniValue("Serial", "BaudRate",
                                 RateTexts[static_cast<std::size_t>(zIndex - FirstRateIndex)]);
}

void frmBaudRate::btnSendSyncChar_Click() {
  context_.sender.SendCodesToOrvatone(scp::SyncCharacter, false);
}

bool frmBaudRate::IsDetuneConfirmed(const std::string& zText) {
  const auto answers = [this](const QString& zQuestion, PromptAnswer zGoOn) {
    return context_.prompts.Ask(this, ApplicationTitle, zQuestion, PromptButtons::YesNoCancel) ==
           zGoOn;
  };
  return answers(QStringLiteral("If you do not know what you are doing...\r\n"
                                "then hit Cancel and DO NOT change the Detune value!\r\n\r\n"
                                "Do you know how to properly set this value?"),
                 PromptAnswer::Yes) &&
         answers(QStringLiteral("Do you want to do abort this function."), PromptAnswer::No) &&
         answers(QStringLiteral("Do you want to set the detune value to ") + ToQString(zText) +
                     QStringLiteral("?"),
                 PromptAnswer::Yes);
}

void frmBaudRate::btnSendDetuneValue_Click() {
  const std::string text = form_.Get<TextBox>("txtClockAdj")->Text();
  const DetuneRequest request = IsDetuneConfirmed(text) ? ReadDetune(text) : DetuneRequest{};
  if (request.isRefused) {
    context_.prompts.Tell(this, QStringLiteral("The detune value ") + ToQString(text) +
                                    QStringLiteral(" is more than one byte holds, so it was not "
                                                   "sent.\r\nType a value from &H0 to &HFF and "
                                                   "try again."));
  }
  // Even an empty command opens the port and restarts its closing timer.
  context_.sender.SendCodesToOrvatone(request.command, false);
}

}  // namespace loquitor
