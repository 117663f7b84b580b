#include "ui/chip/frm_buttons.h"

#include <QLabel>
#include <QPushButton>
#include <span>
#include <vector>

#include "core/number_text.h"
#include "link/scp.h"
#include "ui/chip/decimal_form.h"
#include "ui/toolkit/busy.h"
#include "ui/toolkit/code_page.h"

namespace loquitor {
namespace {

constexpr const char* Section = "EEPROM";
constexpr const char* PhraseKey = "PhraseToPlay";
constexpr const char* AutoSilenceKey = "AutoSilence";

// The grid of the events: columns from left to right, one row of headings, then 17 rows.
constexpr int ColumnsLeft = 2190;
constexpr int ColumnWidth = 1080;
constexpr int HeadingTop = 240;
constexpr int HeadingWidth = 870;  // two lines each
constexpr int HeadingHeight = 450;
constexpr int LineTop = HeadingTop + HeadingHeight + 45;
constexpr int RowsTop = LineTop + 75;
constexpr int RowPitch = 330;
constexpr int CheckWidth = 600;
constexpr int BoxWidth = 600;
constexpr int BoxHeight = 300;

constexpr int Margin = 120;
constexpr int EventsWidth = ColumnsLeft + 5 * ColumnWidth + 90;
constexpr int EventsHeight = RowsTop + EventCount * RowPitch + 75;
constexpr int MiscTop = Margin + EventsHeight + Margin;
constexpr int MiscHeight = 705;
constexpr int Bottom = MiscTop + MiscHeight;

// The option frames at the right.
constexpr int OptionsLeft = Margin + EventsWidth + Margin;
constexpr int OptionsWidth = 3810;
constexpr int OptionTop = 300;
constexpr int OptionPitch = 345;
constexpr int OptionHeight = 285;
constexpr int OptionWidth = 1275;
constexpr int LeftOption = 1185;
constexpr int RightOption = LeftOption + OptionWidth;
constexpr int OptionFrameHeight2 = OptionTop + 2 * OptionPitch + 75;
constexpr int OptionFrameHeight3 = OptionTop + 3 * OptionPitch + 75;
constexpr int ControlTop = Margin + OptionFrameHeight2 + Margin;
constexpr int StartupTop = ControlTop + OptionFrameHeight3 + Margin;

constexpr int ButtonHeight = 435;
constexpr int ButtonPitch = ButtonHeight + Margin;
constexpr TwipSize ClientSize{OptionsLeft + OptionsWidth + Margin, Bottom + Margin};

enum Column { PlayColumn, PhraseColumn, ClearColumn, CallColumn, RestartColumn };

constexpr std::array<const char*, 5> ColumnHeadings{
    "Play Phrase", "Phrase# To Play", "Clear Buffer", "Call Phrase", "Restart From Wait"};

constexpr TwipRect InColumn(int zColumn, int zTop, int zWidth, int zHeight) {
  return {ColumnsLeft + zColumn * ColumnWidth + (ColumnWidth - zWidth) / 2, zTop, zWidth, zHeight};
}

constexpr TwipRect HeadingPlace(Column zColumn) {
  return InColumn(zColumn, HeadingTop, HeadingWidth, HeadingHeight);
}

constexpr ControlRow EventsFrame[] = {
    {ControlKind::Frame, "Frame1", "", "Events", {Margin, Margin, EventsWidth, EventsHeight}},
    {ControlKind::Label,
     "lblEvent",
     "Frame1",
     "Event",
     {180, HeadingTop, ColumnsLeft - 300, HeadingHeight}},
    {ControlKind::CentredLabel, "lblPlay", "Frame1", ColumnHeadings[PlayColumn],
     HeadingPlace(PlayColumn)},
    {ControlKind::CentredLabel, "lblPhrase", "Frame1", ColumnHeadings[PhraseColumn],
     HeadingPlace(PhraseColumn)},
    {ControlKind::CentredLabel, "lblClear", "Frame1", ColumnHeadings[ClearColumn],
     HeadingPlace(ClearColumn)},
    {ControlKind::CentredLabel, "lblCall", "Frame1", ColumnHeadings[CallColumn],
     HeadingPlace(CallColumn)},
    {ControlKind::CentredLabel, "lblRestart", "Frame1", ColumnHeadings[RestartColumn],
     HeadingPlace(RestartColumn)},
    {ControlKind::HorizontalLine, "Line1", "Frame1", "", {90, LineTop, EventsWidth - 180, 15}},
    {ControlKind::VerticalLine,
     "Line2",
     "Frame1",
     "",
     {ColumnsLeft - 60, HeadingTop, 15, EventsHeight - HeadingTop - 90}},
};

constexpr ControlRow MiscellaneousFrame[] = {
    {ControlKind::Frame, "Frame2", "", "Miscellaneous", {Margin, MiscTop, EventsWidth, MiscHeight}},
    {ControlKind::Label, "Label2", "Frame2", "SCP Node:", {180, 330, 1050, 255}},
    {ControlKind::TextBox,
     "txtSCPNode",
     "Frame2",
     "0",
     {1260, 285, BoxWidth, BoxHeight},
     "",
     "SCP Node"},
    {ControlKind::CheckBox,
     "chAutoSil",
     "Frame2",
     "Auto Silence",
     {ColumnsLeft + 120, 285, 1800, 300}},
};

constexpr ControlRow OptionFrames[] = {
    {ControlKind::Frame,
     "Frame3",
     "",
     "Input Style",
     {OptionsLeft, Margin, OptionsWidth, OptionFrameHeight2}},
    {ControlKind::Frame,
     "Frame4",
     "",
     "Output Controled by",
     {OptionsLeft, ControlTop, OptionsWidth, OptionFrameHeight3}},
    {ControlKind::Frame,
     "Frame5",
     "",
     "Output Startup State",
     {OptionsLeft, StartupTop, OptionsWidth, OptionFrameHeight3}},
};

constexpr ControlRow Buttons[] = {
    {ControlKind::Button,
     "btnWrite",
     "",
     "Write Data to Orvatone",
     {OptionsLeft, Bottom - 2 * ButtonPitch - ButtonHeight, OptionsWidth, ButtonHeight}},
    {ControlKind::Button,
     "btnShutUp",
     "",
     "Shut Up",
     {OptionsLeft, Bottom - ButtonPitch - ButtonHeight, OptionsWidth, ButtonHeight},
     "Stop the Orvatone now."},
    {ControlKind::Button,
     "btnDone",
     "",
     "Done",
     {OptionsLeft, Bottom - ButtonHeight, OptionsWidth, ButtonHeight}},
};

/// Where the options of a frame begin in OptionRows, and the frame's control.
struct OptionFrameControl {
  const char* name;
  int firstOption;
};

constexpr OptionFrameControl ControlOf(OptionFrame zFrame) {
  switch (zFrame) {
    case OptionFrame::InputStyle:
      return {"Frame3", 0};
    case OptionFrame::OutputControl:
      return {"Frame4", 4};
    case OptionFrame::OutputStartup:
      break;
  }
  return {"Frame5", 10};
}

/// One kind of check box of the event rows: its control group, the stem of its settings keys, where
/// it stands.
struct EventCheck {
  const char* control;
  const char* key;
  Column column;
};
constexpr EventCheck PlayCheck{"chPlay", "Play", PlayColumn};
constexpr EventCheck ClearCheck{"chClear", "Clear", ClearColumn};
constexpr EventCheck RestartCheck{"chRestart", "Restart", RestartColumn};
constexpr EventCheck CallCheck{"chInt", "Interupt", CallColumn};

/// In the order of the settings file.
constexpr std::array<EventCheck, 4> InputChecks{PlayCheck, ClearCheck, RestartCheck, CallCheck};
constexpr std::array<EventCheck, 1> PowerUpChecks{PlayCheck};

std::span<const EventCheck> ChecksOf(int zRow) {
  if (zRow == PowerUpEvent) {
    return PowerUpChecks;
  }
  return InputChecks;
}

std::string Numbered(const char* zStem, int zNumber) {
  return zStem + std::to_string(zNumber);
}

/// The caption of an event's row as it is shown.
QString EventCaption(int zRow) {
  return QString::fromUtf8(EventRows[static_cast<std::size_t>(zRow)].caption)
      .replace(QStringLiteral("&&"), QStringLiteral("&"));
}

std::string CheckText(const CheckBox* zBox) {
  return std::to_string(zBox->Value());
}

int RowTop(int zRow) {
  return RowsTop + zRow * RowPitch;
}

}  // namespace

frmButtons::frmButtons(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Event Configuration"), ClientSize),
      context_(zContext),
      form_(this) {
  AddEvents();
  form_.Add(MiscellaneousFrame);
  form_.Get<TextBox>("txtSCPNode")->setAlignment(Qt::AlignHCenter);
  form_.Add(OptionFrames);
  for (int index = 0; index < OptionCount; ++index) {
    AddOption(index);
  }
  form_.Add(Buttons);
  connect(form_.Get<QPushButton>("btnWrite"), &QPushButton::clicked, this,
          &frmButtons::btnWrite_Click);
  connect(form_.Get<QPushButton>("btnShutUp"), &QPushButton::clicked, this,
          &frmButtons::btnShutUp_Click);
  connect(form_.Get<QPushButton>("btnDone"), &QPushButton::clicked, this,
          &frmButtons::btnDone_Click);
}

void frmButtons::AddEvents() {
  form_.Add(EventsFrame);
  for (const ControlRow& row : EventsFrame) {
    if (auto* heading = findChild<QLabel*>(row.name)) {
      heading->setAlignment((heading->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignBottom);
    }
  }
  for (int row = 0; row < EventCount; ++row) {
    AddEventRow(row);
  }
}

void frmButtons::AddEventRow(int zRow) {
  form_.Add({.kind = ControlKind::Label,
             .name = "Label1",
             .parent = "Frame1",
             .caption = EventRows[static_cast<std::size_t>(zRow)].caption,
             .place = {180, RowTop(zRow) + 60, ColumnsLeft - 300, RowPitch - 90},
             .index = zRow});
  AddCheck("chPlay", PlayColumn, zRow);
  form_.Add({.kind = ControlKind::TextBox,
             .name = "txtPhrase",
             .parent = "Frame1",
             .caption = "0",
             .place = InColumn(PhraseColumn, RowTop(zRow), BoxWidth, BoxHeight),
             .index = zRow});
  TextBox* box = PhraseBox(zRow);
  box->setAlignment(Qt::AlignHCenter);
  NameAfterColumn(box, PhraseColumn, zRow);
  connect(box, &TextBox::LostFocus, this, [this, zRow] { txtPhrase_LostFocus(zRow); });
  if (zRow != PowerUpEvent) {
    AddCheck("chClear", ClearColumn, zRow);
    AddCheck("chInt", CallColumn, zRow);
    AddCheck("chRestart", RestartColumn, zRow);
  }
}

void frmButtons::AddCheck(const char* zName, int zColumn, int zRow) {
  form_.Add({.kind = ControlKind::CheckBox,
             .name = zName,
             .parent = "Frame1",
             .caption = "",
             .place = InColumn(zColumn, RowTop(zRow), CheckWidth, BoxHeight),
             .index = zRow});
  NameAfterColumn(Check(zName, zRow), zColumn, zRow);
}

void frmButtons::NameAfterColumn(QWidget* zControl, int zColumn, int zRow) {
  zControl->setAccessibleName(EventCaption(zRow) + QStringLiteral(": ") +
                              QString::fromUtf8(ColumnHeadings[static_cast<std::size_t>(zColumn)]));
}

void frmButtons::AddOption(int zIndex) {
  const OptionRow& row = OptionRows[static_cast<std::size_t>(zIndex)];
  const OptionFrameControl frame = ControlOf(row.frame);
  const bool isLeft = zIndex % 2 == 0;
  const int top = OptionTop + (zIndex - frame.firstOption) / 2 * OptionPitch;
  if (isLeft) {
    form_.Add({.kind = ControlKind::Label,
               .name = "lblSetting",
               .parent = frame.name,
               .caption = row.setting,
               .place = {180, top + 45, 960, OptionHeight - 45},
               .index = zIndex});
    pairs_[static_cast<std::size_t>(zIndex / 2)] = new OptionGroup(this);
  }
  form_.Add({.kind = ControlKind::OptionButton,
             .name = "optIO",
             .parent = frame.name,
             .caption = row.caption,
             .place = {isLeft ? LeftOption : RightOption, top, OptionWidth, OptionHeight},
             .index = zIndex});
  auto* option = form_.Get<OptionButton>(Indexed("optIO", zIndex));
  option->setAccessibleName(QString::fromUtf8(row.setting) + QStringLiteral(": ") +
                            QString::fromUtf8(row.caption));
  PairOf(zIndex)->Add(option, zIndex);
}

CheckBox* frmButtons::Check(const char* zName, int zRow) const {
  return form_.Get<CheckBox>(Indexed(zName, zRow));
}

TextBox* frmButtons::PhraseBox(int zRow) const {
  return form_.Get<TextBox>(Indexed("txtPhrase", zRow));
}

void frmButtons::Load() {
  const SettingsFile& settings = context_.settings;
  for (int row = 0; row < EventCount; ++row) {
    for (const EventCheck& check : ChecksOf(row)) {
      const std::string stored = settings.GetIniValue(Section, Numbered(check.key, row), "0");
      Check(check.control, row)->SetValue(IsTrueText(stored) ? 1 : 0);
    }
    PhraseBox(row)->SetText(settings.GetIniValue(Section, Numbered(PhraseKey, row), "0"));
  }
  for (int index = 0; index < OptionCount; ++index) {
    const char* key = OptionRows[static_cast<std::size_t>(index)].key;
    PairOf(index)->SetChosen(index, IsTrueText(settings.GetIniValue(Section, key, "0")));
  }
  const std::string autoSilence = settings.GetIniValue(Section, AutoSilenceKey, "1");
  form_.Get<CheckBox>("chAutoSil")->SetValue(IsTrueText(autoSilence) ? 1 : 0);
}

void frmButtons::Unload() {
  if (context_.sender.SendCount() == lastWrite_) {
    context_.sender.ClearPendingOutput();  // but never a Shut Up that still waits for the line
  }
  std::vector<ProfileValue> entries;
  for (int row = 0; row < EventCount; ++row) {
    for (const EventCheck& check : ChecksOf(row)) {
      entries.push_back({Numbered(check.key, row), CheckText(Check(check.control, row))});
    }
    entries.push_back({Numbered(PhraseKey, row), PhraseBox(row)->Text()});
  }
  for (int index = 0; index < OptionCount; ++index) {
    entries.push_back({OptionRows[static_cast<std::size_t>(index)].key,
                       PairOf(index)->IsChosen(index) ? "True" : "False"});
  }
  entries.push_back({AutoSilenceKey, CheckText(form_.Get<CheckBox>("chAutoSil"))});
  // What cannot be stored is passed over in silence, as everywhere in the settings.
  static_cast<void>(context_.settings.SaveIniValues(Section, entries));
}

EventSetting frmButtons::ReadEvent(int zRow) const {
  const auto isTicked = [this, zRow](const EventCheck& zCheck) {
    return Check(zCheck.control, zRow)->isChecked();
  };
  EventSetting event;
  event.playsPhrase = isTicked(PlayCheck);
  event.phrase = PhraseNumberOf(PhraseBox(zRow)->Text()).value_or(0);
  if (zRow != PowerUpEvent) {
    event.clearsBuffer = isTicked(ClearCheck);
    event.callsPhrase = isTicked(CallCheck);
    event.restartsFromWait = isTicked(RestartCheck);
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
  constexpr int MostShown = 40;  // characters of a text that someone has pasted
  QString text =
      QStringLiteral("Nothing was sent, because this is no number that can be written:\r\n");
  for (const NumberBox& number : zUnusable) {
    text += QStringLiteral("\r\n%1: \"%2\"").arg(number.row, number.box->text().left(MostShown));
  }
  text += QStringLiteral(
      "\r\n\r\nType a phrase number from 0 to 15 (an SCP node from 0 to 7) and write again.");
  context_.prompts.Tell(this, text);
  zUnusable.front().box->setFocus(Qt::OtherFocusReason);
  zUnusable.front().box->selectAll();
}

void frmButtons::btnWrite_Click() {
  const Busy busy(this, form_.Get<QPushButton>("btnWrite"));
  if (IsUnloaded()) {
    return;  // closed by one of the events that were pending
  }
  const std::vector<NumberBox> unusable = UnusableNumbers();
  if (!unusable.empty()) {
    Report(unusable);
    return;
  }
  lastWrite_ = context_.sender.SendCount() + 1;
  context_.sender.SendCodesToOrvatone(EventConfigurationString(ReadControls()), false);
}

void frmButtons::btnShutUp_Click() {
  context_.sender.ClearPendingOutput();
  context_.sender.SendCodesToOrvatone(StopSequence(), false);
}

void frmButtons::btnDone_Click() {
  close();
}

void frmButtons::txtPhrase_LostFocus(int zIndex) {
  TextBox* box = PhraseBox(zIndex);
  box->SetText(DecimalForm(box->Text()));
}

}  // namespace loquitor
