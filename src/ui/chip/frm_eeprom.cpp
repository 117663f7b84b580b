#include "ui/chip/frm_eeprom.h"

#include <QLabel>
#include <vector>

#include "ui/chip/chip_write.h"
#include "ui/chip/eeprom_image.h"
#include "ui/chip/slot_label.h"
#include "ui/controls/colours.h"
#include "ui/controls/push_button.h"
#include "ui/phrase/frm_phrase.h"
#include "ui/windows/busy.h"

namespace loquitor {
namespace {

constexpr int SlotsPerColumn = 8;

// Two columns of rows, then one row of buttons.
constexpr int Margin = 150;
constexpr int RowPitch = 390;
constexpr int RowHeight = 330;
constexpr int NumberWidth = 450;
constexpr int PhraseLeft = NumberWidth + 60;
constexpr int PhraseWidth = 5400;
constexpr int ColumnPitch = PhraseLeft + PhraseWidth + 210;
constexpr int ButtonTop = Margin + SlotsPerColumn * RowPitch + 90;
constexpr int ButtonHeight = 435;
constexpr int Right = Margin + ColumnPitch + PhraseLeft + PhraseWidth;
constexpr TwipSize ClientSize{Right + Margin, ButtonTop + ButtonHeight + Margin};

constexpr ControlRow BottomRow[] = {
    PlainRow(ControlKind::CentredLabel, "txtUsed", "", "",
             {Margin + PhraseLeft, ButtonTop, 2100, ButtonHeight}),
    ButtonRow("btnWrite", "", "Write Data to Orvatone",
              {Right - 5100, ButtonTop, 2400, ButtonHeight}),
    ButtonRow("btnShutUp", "", "Shut Up", {Right - 2595, ButtonTop, 1245, ButtonHeight},
              "Stop the Orvatone now."),
    ButtonRow("btnDone", "", "Done", {Right - 1245, ButtonTop, 1245, ButtonHeight}),
};

TwipRect NumberPlace(int zIndex) {
  return {Margin + zIndex / SlotsPerColumn * ColumnPitch,
          Margin + zIndex % SlotsPerColumn * RowPitch, NumberWidth, RowHeight};
}

TwipRect PhrasePlace(int zIndex) {
  TwipRect place = NumberPlace(zIndex);
  place.left += PhraseLeft;
  place.width = PhraseWidth;
  return place;
}

std::string PhraseKey(int zIndex) {
  return "Phrase" + std::to_string(zIndex);
}

/// Tells the user what the settings file does not keep of `zPhrase`. Empty when it keeps all that
/// matters.
QString StorageWarning(const SayDataTranslator& zTranslator, std::string_view zPhrase) {
  const std::string stored = ValueAfterSaving(zPhrase);
  if (stored.size() > ProfileFile::MaxSetting) {
    return QStringLiteral(
               "This phrase has %1 characters. Only the first %2 come back when this window is "
               "opened again. To make it shorter, put words into the dictionary and use them here.")
        .arg(stored.size())
        .arg(ProfileFile::MaxSetting);
  }
  if (stored != zPhrase &&
      TranslateSlot(zTranslator, stored) != TranslateSlot(zTranslator, zPhrase)) {
    return QStringLiteral(
        "This phrase will sound different when this window is opened again: the blanks at its "
        "beginning do not come back. Write its first pause as a comma or a mnemonic.");
  }
  return {};
}

/// The background of the usage label. Invalid for the normal one.
QColor ColourOf(UsageBand zBand) {
  switch (zBand) {
    case UsageBand::Overfull:
      return QColor(255, 0, 0);
    case UsageBand::Tight:
      return QColor(255, 255, 0);
    case UsageBand::Roomy:
      break;
  }
  return {};
}

}  // namespace

frmEEPROM::frmEEPROM(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone EEPROM Editor"), ClientSize),
      context_(zContext),
      form_(this) {
  for (int index = 0; index < eeprom::PhraseCount; ++index) {
    AddSlot(index);
  }
  form_.Add(BottomRow);
  auto* used = form_.Get<QLabel>("txtUsed");
  used->setAlignment(Qt::AlignCenter);
  used->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  used->setAutoFillBackground(true);
  write_ = new ChipWrite(this, zContext.sender, zContext.shared.EepromWrite, WriteCutters());
  form_.OnClick("btnWrite", this, &frmEEPROM::btnWrite_Click);
  form_.OnClick("btnShutUp", this, &frmEEPROM::btnShutUp_Click);
  form_.Get<PushButton>("btnShutUp")->SetKey(Qt::Key_F8);
  form_.OnClick("btnDone", this, &frmEEPROM::close);
}

/// The controls that would cut a write and leave the chip half written.
QWidgetList frmEEPROM::WriteCutters() const {
  QWidgetList controls{form_.Get<QWidget>("btnWrite")};
  for (std::size_t slot = 0; slot < phrases_.size(); ++slot) {
    controls << lbs_[slot] << phrases_[slot];
  }
  return controls;
}

void frmEEPROM::AddSlot(int zIndex) {
  const auto slot = static_cast<std::size_t>(zIndex);
  auto* number = lbs_[slot] = new SlotLabel(QString::number(zIndex) + QLatin1Char(' '), this);
  number->setObjectName(Indexed("lbs", zIndex));
  number->setAccessibleName(QStringLiteral("Play phrase %1").arg(zIndex));
  number->setToolTip(QStringLiteral("Play phrase %1 as the Orvatone holds it.").arg(zIndex));
  number->setGeometry(NumberPlace(zIndex).ToPixels());
  connect(number, &SlotLabel::clicked, this, [this, zIndex] { lbs_Click(zIndex); });

  auto* phrase = phrases_[slot] = new PhraseLabel(zIndex, this);
  phrase->setObjectName(Indexed("Phrase", zIndex));
  phrase->setGeometry(PhrasePlace(zIndex).ToPixels());
  connect(phrase, &SlotLabel::clicked, this, [this, zIndex] { Phrase_Click(zIndex); });
}

std::string frmEEPROM::GetEEPROMPhraseString() const {
  std::array<SlotCodes, eeprom::PhraseCount> codes;
  for (std::size_t slot = 0; slot < codes.size(); ++slot) {
    codes[slot] = TranslateSlot(context_.translator, phrases_[slot]->Phrase());
  }
  return BuildEepromImage(codes);
}

void frmEEPROM::ReportUsed() {
  const std::size_t used = UsedLocations(GetEEPROMPhraseString().size());
  auto* label = form_.Get<QLabel>("txtUsed");
  label->setText(QString::fromStdString(UsageText(used)));
  label->setAccessibleName(label->text());
  SetColours(label, QPalette::Window, QPalette::WindowText, ColourOf(BandOfUsage(used)));
}

void frmEEPROM::ShowPhrase(int zIndex, std::string_view zPhrase) {
  phrases_[static_cast<std::size_t>(zIndex)]->SetPhrase(
      zPhrase, StorageWarning(context_.translator, zPhrase));
}

void frmEEPROM::Load() {
  for (int index = 0; index < eeprom::PhraseCount; ++index) {
    ShowPhrase(index, context_.settings.GetIniValue("EEPROM", PhraseKey(index), ""));
  }
  ReportUsed();
  write_->ShowEarlierWrite();
}

void frmEEPROM::Unload() {
  std::vector<ProfileValue> entries;
  for (int index = 0; index < eeprom::PhraseCount; ++index) {
    entries.push_back({PhraseKey(index), phrases_[static_cast<std::size_t>(index)]->Phrase()});
  }
  context_.settings.SaveIniValues("EEPROM", entries);
}

void frmEEPROM::btnWrite_Click() {
  RunBusy(this, form_.Get<QWidget>("btnWrite"), [this] { WritePhrases(); });
}

void frmEEPROM::WritePhrases() {
  const std::string image = GetEEPROMPhraseString();
  if (image.size() > MaxImageLength) {
    context_.prompts.Tell(this,
                          QStringLiteral("EEPROM Phrases too large.\r\nReduce and try again."));
    return;
  }
  write_->Send(EepromWriteString(image));
}

void frmEEPROM::btnShutUp_Click() {
  context_.sender.ShutUp();
}

void frmEEPROM::Phrase_Click(int zIndex) {
  context_.shared.WordToMove.clear();
  context_.shared.PhraseToMove = phrases_[static_cast<std::size_t>(zIndex)]->Phrase();
  frmPhrase editor(this, context_);
  // Not after ShowModal: while a send of the editor waits for the line, ShowModal may return long
  // after the editor has been closed, when another phrase has been edited.
  connect(&editor, &frmPhrase::Closed, this, [this, zIndex] {
    ShowPhrase(zIndex, context_.shared.PhraseToMove);
    ReportUsed();
  });
  editor.ShowModal();
}

void frmEEPROM::lbs_Click(int zIndex) {
  const char codes[] = {static_cast<char>(chip_code::Play), static_cast<char>(zIndex)};
  context_.sender.SendCodesToOrvatone(std::string_view(codes, sizeof codes), true);
}

}  // namespace loquitor
