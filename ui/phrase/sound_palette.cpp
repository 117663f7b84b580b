#include "ui/phrase/sound_palette.h"

#include <QMap>
#include <optional>
#include <utility>

#include "ui/phrase/member_keys.h"
#include "ui/phrase/sound_command.h"
#include "ui/toolkit/busy.h"
#include "ui/toolkit/click_label.h"

namespace loquitor {
namespace {

constexpr char GroupName[] = "Command1";
constexpr QColor RefusedColor{255, 170, 170};

ClickLabel* LabelOf(const Form& zForm, const PaletteMember& zMember) {
  return zForm.Get<ClickLabel>(Indexed(GroupName, zMember.index));
}

}  // namespace

void SoundPalette::AddTo(Form& zForm) {
  for (const PaletteMember& member : PaletteTable) {
    const std::string tooltip = TooltipOf(member);
    zForm.Add({.kind = ControlKind::ClickLabel,
               .name = GroupName,
               .parent = member.frame,
               .caption = member.caption.CString(),
               .place = member.place,
               .tooltip = tooltip.c_str(),
               .index = member.index});
  }
}

SoundPalette::SoundPalette(QWidget* zWindow, const Form& zForm, const EditorContext& zContext,
                           VoiceControls& zVoice)
    : QObject(zWindow), window_(zWindow), form_(zForm), context_(zContext), voice_(zVoice) {
  for (const PaletteMember& member : PaletteTable) {
    Connect(member);
  }
  ConnectKeys();
}

void SoundPalette::Connect(const PaletteMember& zMember) {
  ClickLabel* label = LabelOf(form_, zMember);
  const int index = zMember.index;
  connect(label, &ClickLabel::Click, this, [=, this] { Command1_Click(index); });
  connect(label, &ClickLabel::DoubleClick, this, [=, this] { Command1_DblClick(index); });
  // A click that ends in a question has to leave a double click the time for its second press.
  label->SetDelaysClick(CodeOf(context_.codeTable, zMember) == palette_code::Wait);
  if (TextBox* box = ValueBoxOf(zMember)) {
    connect(box, &TextBox::textChanged, this, [box, label] {
      box->SetBackground({});
      label->SetDelaysClick(!ValueByte(box->Text()));
    });
  }
}

/// Each frame with members is one stop in the tab order; the voice labels go with their frame's.
void SoundPalette::ConnectKeys() {
  QMap<QWidget*, QVector<ClickLabel*>> frames;
  for (ClickLabel* label : voice_.Labels()) {
    frames[label->parentWidget()].append(label);
  }
  for (const PaletteMember& member : PaletteTable) {
    ClickLabel* label = LabelOf(form_, member);
    if (!label->isHidden()) {
      frames[label->parentWidget()].append(label);
    }
  }
  for (auto frame = frames.cbegin(); frame != frames.cend(); ++frame) {
    new MemberKeys(frame.key(), frame.value());
  }
}

void SoundPalette::Command1_Click(int zIndex) {
  const PaletteMember& member = *FindPaletteMember(zIndex);
  const Busy busy(window_);
  if (!window_->isVisible()) {
    return;  // closed by one of the events that were pending, or while the click was held back
  }
  const std::string prefix = TakePrefix(context_.shared.SkipControlsOnce, voice_.AppliesToSounds(),
                                        voice_.GetControlCodes());
  const std::int16_t code = CodeOf(context_.codeTable, member);
  if (code == palette_code::Wait && !ConfirmWait()) {
    return;
  }
  const auto codes = SoundCodes(context_.codeTable, member, ValueTextOf(member));
  if (!codes) {
    RefuseValue(member);
    return;
  }
  if (code == palette_code::Reset) {
    voice_.SetDefaults();
  } else if (IsNote(code)) {
    voice_.SetPitch(context_.codeTable.GetNotePitch(code));
  } else if (code == palette_code::Repeat) {
    context_.shared.SkipControlsOnce = true;
  }
  context_.sender.SendCodesToOrvatone(prefix + *codes, true);
}

void SoundPalette::Command1_DblClick(int zIndex) {
  const PaletteMember& member = *FindPaletteMember(zIndex);
  emit InsertWanted(InsertedText(member, ValueTextOf(member)));
}

bool SoundPalette::ConfirmWait() {
  return context_.prompts.Ask(window_, "Notice", WaitNotice(), PromptButtons::OkCancel) ==
         PromptAnswer::Ok;
}

void SoundPalette::RefuseValue(const PaletteMember& zMember) {
  refusedBox_ = ValueBoxOf(zMember);
  refusedBox_->SetBackground(RefusedColor);
  context_.prompts.Tell(window_, ValueNotice(zMember));
  if (window_->isActiveWindow()) {
    FocusRefusedBox();
  }
}

void SoundPalette::FocusRefusedBox() {
  if (TextBox* box = std::exchange(refusedBox_, nullptr)) {
    box->setFocus(Qt::OtherFocusReason);
    box->selectAll();
  }
}

TextBox* SoundPalette::ValueBoxOf(const PaletteMember& zMember) const {
  return *zMember.valueBox == '\0' ? nullptr : form_.Get<TextBox>(zMember.valueBox);
}

std::string SoundPalette::ValueTextOf(const PaletteMember& zMember) const {
  const TextBox* box = ValueBoxOf(zMember);
  return box == nullptr ? std::string() : box->Text();
}

}  // namespace loquitor
