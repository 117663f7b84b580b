#include "ui/chip/event_form.h"

#include <QLabel>

#include "ui/chip/event_configuration.h"
#include "ui/controls/check_box.h"
#include "ui/controls/fitting.h"
#include "ui/controls/form.h"
#include "ui/controls/text_box.h"

namespace loquitor {
namespace {

using enum ControlKind;

// The grid of the events: columns from left to right, one row of headings, then the events.
constexpr int ColumnsLeft = 2190;
constexpr int ColumnWidth = 1080;
constexpr int HeadingTop = 240;
constexpr int HeadingWidth = 870;  // two lines each
constexpr int HeadingHeight = 450;
constexpr int LineTop = HeadingTop + HeadingHeight + 45;
constexpr int RowsTop = LineTop + 75;
constexpr int RowPitch = 330;
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
constexpr int InputStyleHeight = OptionTop + 2 * OptionPitch + 75;
constexpr int OutputHeight = OptionTop + 3 * OptionPitch + 75;
constexpr int OutputControlTop = Margin + InputStyleHeight + Margin;
constexpr int OutputStartupTop = OutputControlTop + OutputHeight + Margin;

constexpr int ButtonHeight = 435;
constexpr int ButtonPitch = ButtonHeight + Margin;

constexpr TwipRect ButtonPlace(int zFromBottom) {
  return {OptionsLeft, Bottom - zFromBottom * ButtonPitch - ButtonHeight, OptionsWidth,
          ButtonHeight};
}

constexpr TwipRect InColumn(int zColumn, int zTop, int zWidth, int zHeight) {
  return {ColumnsLeft + zColumn * ColumnWidth + (ColumnWidth - zWidth) / 2, zTop, zWidth, zHeight};
}

constexpr TwipRect HeadingPlace(int zColumn) {
  return InColumn(zColumn, HeadingTop, HeadingWidth, HeadingHeight);
}

constexpr ControlRow EventsFrame[] = {
    PlainRow(Frame, "Frame1", "", "Events", {Margin, Margin, EventsWidth, EventsHeight}),
    PlainRow(Label, "lblEvent", "Frame1", "Event",
             {180, HeadingTop, ColumnsLeft - 300, HeadingHeight}),
    PlainRow(CentredLabel, "lblPlay", "Frame1", "Play Phrase", HeadingPlace(0)),
    PlainRow(CentredLabel, "lblPhrase", "Frame1", "Phrase# To Play", HeadingPlace(1)),
    PlainRow(CentredLabel, "lblClear", "Frame1", "Clear Buffer", HeadingPlace(2)),
    PlainRow(CentredLabel, "lblCall", "Frame1", "Call Phrase", HeadingPlace(3)),
    PlainRow(CentredLabel, "lblRestart", "Frame1", "Restart From Wait", HeadingPlace(4)),
    PlainRow(HorizontalLine, "Line1", "Frame1", "", {90, LineTop, EventsWidth - 180, 15}),
    PlainRow(VerticalLine, "Line2", "Frame1", "",
             {ColumnsLeft - 60, HeadingTop, 15, EventsHeight - HeadingTop - 90}),
};

constexpr ControlRow Miscellaneous[] = {
    PlainRow(Frame, "Frame2", "", "Miscellaneous", {Margin, MiscTop, EventsWidth, MiscHeight}),
    PlainRow(Label, "Label2", "Frame2", "SCP Node:", {180, 330, 1050, 255}),
    BoxRow("txtSCPNode", "Frame2", "0", {1260, 285, BoxWidth, BoxHeight}, "SCP Node"),
    PlainRow(CheckBox, "chAutoSil", "Frame2", "Auto Silence", {ColumnsLeft + 120, 285, 1800, 300}),
};

constexpr ControlRow OptionFrames[] = {
    PlainRow(Frame, "Frame3", "", "Input Style",
             {OptionsLeft, Margin, OptionsWidth, InputStyleHeight}),
    PlainRow(Frame, "Frame4", "", "Output Controled by",
             {OptionsLeft, OutputControlTop, OptionsWidth, OutputHeight}),
    PlainRow(Frame, "Frame5", "", "Output Startup State",
             {OptionsLeft, OutputStartupTop, OptionsWidth, OutputHeight}),
};

constexpr ControlRow Buttons[] = {
    ButtonRow("btnWrite", "", "Write Data to Orvatone", ButtonPlace(2)),
    ButtonRow("btnShutUp", "", "Shut Up", ButtonPlace(1), "Stop the Orvatone now."),
    ButtonRow("btnDone", "", "Done", ButtonPlace(0)),
};

/// A control of an event's row: its kind, its control group and its column heading.
struct EventControl {
  ControlKind kind;
  const char* name;
  const char* heading;
};

/// From left to right. The power-up row has the first two.
constexpr EventControl EventControls[] = {{CheckBox, "chPlay", "Play Phrase"},
                                          {TextBox, "txtPhrase", "Phrase# To Play"},
                                          {CheckBox, "chClear", "Clear Buffer"},
                                          {CheckBox, "chInt", "Call Phrase"},
                                          {CheckBox, "chRestart", "Restart From Wait"}};
constexpr int PowerUpControls = 2;

void AddEventRow(Form& zForm, int zRow) {
  const int top = RowsTop + zRow * RowPitch;
  const char* const caption = EventCaptions[static_cast<std::size_t>(zRow)];
  zForm.Add(PlainRow(Label, "Label1", "Frame1", caption,
                     {180, top + 60, ColumnsLeft - 300, RowPitch - 90}, zRow));
  int column = 0;
  for (const EventControl& control : EventControls) {
    if (zRow == PowerUpEvent && column == PowerUpControls) {
      return;
    }
    const std::string name = EventCaption(zRow).toStdString() + ": " + control.heading;
    const char* const text = control.kind == TextBox ? "0" : "";
    zForm.Add({control.kind,
               control.name,
               "Frame1",
               text,
               InColumn(column++, top, BoxWidth, BoxHeight),
               "",
               name.c_str(),
               {},
               zRow});
  }
}

void AddEvents(Form& zForm) {
  zForm.Add(EventsFrame);
  for (const ControlRow& row : EventsFrame) {
    if (row.kind == Label || row.kind == CentredLabel) {
      auto* heading = zForm.Get<QLabel>(QLatin1String(row.name));
      heading->setAlignment((heading->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignBottom);
    }
  }
  for (int row = 0; row < EventCount; ++row) {
    AddEventRow(zForm, row);
    zForm.Get<loquitor::TextBox>(Indexed("txtPhrase", row))->setAlignment(Qt::AlignHCenter);
  }
}

/// A frame of options, and the index of the first option in it.
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

void AddOption(Form& zForm, int zIndex) {
  const OptionRow& row = OptionRows[static_cast<std::size_t>(zIndex)];
  const OptionFrameControl frame = ControlOf(row.frame);
  const bool isLeft = zIndex % 2 == 0;
  const int top = OptionTop + (zIndex - frame.firstOption) / 2 * OptionPitch;
  if (isLeft) {
    zForm.Add(PlainRow(Label, "lblSetting", frame.name, row.setting,
                       {180, top + 45, 960, OptionHeight - 45}, zIndex));
  }
  const std::string name = std::string(row.setting) + ": " + row.caption;
  zForm.Add({OptionButton,
             "optIO",
             frame.name,
             row.caption,
             {isLeft ? LeftOption : RightOption, top, OptionWidth, OptionHeight},
             "",
             name.c_str(),
             {},
             zIndex});
}

}  // namespace

const TwipSize EventClientSize{OptionsLeft + OptionsWidth + Margin, Bottom + Margin};

QString EventCaption(int zRow) {
  return ShownCaption(QString::fromUtf8(EventCaptions[static_cast<std::size_t>(zRow)]));
}

void BuildEventForm(Form& zForm) {
  AddEvents(zForm);
  zForm.Add(Miscellaneous);
  zForm.Get<loquitor::TextBox>("txtSCPNode")->setAlignment(Qt::AlignHCenter);
  zForm.Add(OptionFrames);
  for (int index = 0; index < OptionCount; ++index) {
    AddOption(zForm, index);
  }
  zForm.Add(Buttons);
}

}  // namespace loquitor
