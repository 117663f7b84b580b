#include "ui/chip/frm_buttons.h"

#include <utility>

#include "text/number_text.h"
#include "ui/chip/chip_write.h"
#include "ui/chip/decimal_form.h"
#include "ui/chip/event_form.h"
#include "ui/chip/phrase_tooltip.h"
#include "ui/controls/check_box.h"
#include "ui/controls/code_page.h"
#include "ui/controls/colours.h"
#include "ui/controls/push_button.h"
#include "ui/controls/text_box.h"
#include "ui/windows/busy.h"

namespace loquitor {
namespace {

constexpr const char* Section = "EEPROM";

/// One kind of check box in the event rows: its control group, the stem of its settings keys and
/// the field that it sets.
struct EventCheck {
  const char* control;
  const char* key;
  bool EventSetting::*state;
};

/// In the order of the settings file. The power-up row has the first one.
constexpr std::array<EventCheck, 4> EventChecks{{
    {"chPlay", "Play", &EventSetting::playsPhrase},
    {"chClear", "Clear", &EventSetting::clearsBuffer},
    {"chRestart", "Restart", &EventSetting::restartsFromWait},
    {"chInt", "Interupt", &EventSetting::callsPhrase},
}};

std::span<const EventCheck> ChecksOf(int zRow) {
  return std::span(EventChecks).first(zRow == PowerUpEvent ? 1 : EventChecks.size());
}

}  // namespace

frmButtons::frmButtons(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Event Configuration"), EventClientSize),
      context_(zContext),
      form_(this) {
  BuildEventForm(form_);
  for (int row = 0; row < EventCount; ++row) {
    TextBox* const box = PhraseBox(row);
    connect(box, &TextBox::textChanged, this, [this, row] { txtPhrase_Change(row); });
    connect(box, &TextBox::LostFocus, this, [this, row] { txtPhrase_LostFocus(row); });
  }
  for (int index = 0; index < OptionCount; ++index) {
    OptionGroup*& pair = pairs_[static_cast<std::size_t>(index / 2)];
    pair = pair == nullptr ? new OptionGroup(this) : pair;
    pair->Add(form_.Get<OptionButton>(Indexed("optIO", index)), index);
  }
  write_ = new ChipWrite(this, zContext.sender, zContext.shared.EventWrite,
                         {form_.Get<QWidget>("btnWrite")});
  form_.OnClick("btnWrite", this, &frmButtons::btnWrite_Click);
  form_.OnClick("btnShutUp", this, &frmButtons::btnShutUp_Click);
  form_.Get<PushButton>("btnShutUp")->SetKey(Qt::Key_F8);
  form_.OnClick("btnDone", this, &frmButtons::close);
}

CheckBox* frmButtons::Check(const char* zName, int zRow) const {
  return form_.Get<CheckBox>(Indexed(zName, zRow));
}

TextBox* frmButtons::PhraseBox(int zRow) const {
  return form_.Get<TextBox>(Indexed("txtPhrase", zRow));
}

frmButtons::StoredControl frmButtons::Stored(std::string zKey, const char* zInitial,
                                             CheckBox* zBox) {
  return {std::move(zKey), zInitial,
          [zBox](std::string_view zText) { zBox->SetValue(WholeNumberAtStart(zText) == 1); },
          [zBox] { return std::to_string(zBox->Value()); }};
}

frmButtons::StoredControl frmButtons::Stored(std::string zKey, TextBox* zBox) {
  return {std::move(zKey), "0", [zBox](std::string_view zText) { zBox->SetText(zText); },
          [zBox] { return zBox->Text(); }};
}

frmButtons::StoredControl frmButtons::StoredOption(int zIndex) const {
  OptionGroup* const pair = PairOf(zIndex);
  const auto show = [pair, zIndex](std::string_view zText) {
    if (IsTrueText(zText)) {
      pair->Choose(zIndex);
    }
  };
  const auto read = [pair, zIndex] {
    return std::string(pair->IsChosen(zIndex) ? "True" : "False");
  };
  return {OptionRows[static_cast<std::size_t>(zIndex)].key, "0", show, read};
}

std::vector<frmButtons::StoredControl> frmButtons::StoredControls() const {
  std::vector<StoredControl> controls;
  for (int row = 0; row < EventCount; ++row) {
    for (const EventCheck& check : ChecksOf(row)) {
      controls.push_back(Stored(check.key + std::to_string(row), "0", Check(check.control, row)));
    }
    controls.push_back(Stored("PhraseToPlay" + std::to_string(row), PhraseBox(row)));
  }
  for (int index = 0; index < OptionCount; ++index) {
    controls.push_back(StoredOption(index));
  }
  controls.push_back(Stored("AutoSilence", "1", form_.Get<CheckBox>("chAutoSil")));
  return controls;
}

void frmButtons::Load() {
  for (const StoredControl& control : StoredControls()) {
    control.show(context_.settings.GetIniValue(Section, control.key, control.initial));
  }
  for (int row = 0; row < EventCount; ++row) {
    txtPhrase_Change(row);
  }
  write_->ShowEarlierWrite();
}

void frmButtons::Unload() {
  std::vector<ProfileValue> entries;
  for (const StoredControl& control : StoredControls()) {
    entries.push_back({control.key, control.read()});
  }
  context_.settings.SaveIniValues(Section, entries);
}

EventSetting frmButtons::ReadEvent(int zRow) const {
  EventSetting event;
  event.phrase = PhraseNumberOf(PhraseBox(zRow)->Text()).value_or(0);
  for (const EventCheck& check : ChecksOf(zRow)) {
    event.*check.state = Check(check.control, zRow)->isChecked();
  }
  return event;
}

EventConfiguration frmButtons::ReadControls() const {
  EventConfiguration configuration;
  for (int row = 0; row < EventCount; ++row) {
    configuration.events[static_cast<std::size_t>(row)] = ReadEvent(row);
  }
  for (int index = 0; index < OptionCount; ++index) {
    configuration.options[static_cast<std::size_t>(index)] = PairOf(index)->IsChosen(index);
  }
  configuration.isAutoSilent = form_.Get<CheckBox>("chAutoSil")->isChecked();
  configuration.scpNode = WholeNumberAtStart(form_.Get<TextBox>("txtSCPNode")->Text()).value_or(0);
  return configuration;
}

std::vector<frmButtons::NumberBox> frmButtons::UnusableNumbers() const {
  std::vector<NumberBox> unusable;
  for (int row = 0; row < EventCount; ++row) {
    if (!PhraseNumberOf(PhraseBox(row)->Text())) {
      unusable.push_back({EventCaption(row), PhraseBox(row)});
    }
  }
  auto* node = form_.Get<TextBox>("txtSCPNode");
  if (!WholeNumberAtStart(node->Text())) {
    unusable.push_back({QStringLiteral("SCP Node"), node});
  }
  return unusable;
}

void frmButtons::Report(const std::vector<NumberBox>& zUnusable) {
  constexpr int MostShown = 40;  // characters of a text; a pasted one may be long
  QString text =
      QStringLiteral("Nothing was sent, because this is not a number that can be written:\r\n");
  for (const NumberBox& number : zUnusable) {
    text += QStringLiteral("\r\n%1: \"%2\"").arg(number.row, number.box->text().left(MostShown));
  }
  text += QStringLiteral(
      "\r\n\r\nType a phrase number from 0 to 15 (an SCP node from 0 to 7) and write again.");
  context_.prompts.Tell(this, text);
  zUnusable.front().box->setFocus(Qt::OtherFocusReason);
  zUnusable.front().box->selectAll();
}

void frmButtons::WriteEvents() {
  const std::vector<NumberBox> unusable = UnusableNumbers();
  if (!unusable.empty()) {
    Report(unusable);
    return;
  }
  write_->Send(EventConfigurationString(ReadControls()));
}

void frmButtons::btnWrite_Click() {
  RunBusy(this, form_.Get<QWidget>("btnWrite"), [this] { WriteEvents(); });
}

void frmButtons::btnShutUp_Click() {
  context_.sender.ShutUp();
}

void frmButtons::txtPhrase_Change(int zIndex) {
  TextBox* const box = PhraseBox(zIndex);
  const std::optional<int> number = PhraseNumberOf(box->Text());
  const int played = PlayedPhrase(number.value_or(0));
  const std::string phrase =
      context_.settings.GetIniValue(Section, "Phrase" + std::to_string(played), "");
  const QString description = ToQString(DescribePhraseNumber(number, phrase));
  box->setToolTip(PhraseTooltip(description));
  box->setAccessibleDescription(description);
  box->SetBackground(number == played ? QColor() : WarningBackground);
}

void frmButtons::txtPhrase_LostFocus(int zIndex) {
  TextBox* box = PhraseBox(zIndex);
  box->SetText(DecimalForm(box->Text()));
}

}  // namespace loquitor
