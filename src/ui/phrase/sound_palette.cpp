#include "ui/phrase/sound_palette.h"

#include <utility>

#include "ui/controls/colours.h"
#include "ui/phrase/sound_command.h"
#include "ui/windows/busy.h"

namespace loquitor {
namespace {

constexpr char GroupName[] = "Command1";

void AddMember(Form& zForm, const PaletteMember& zMember) {
  const std::string tooltip = TooltipOf(zMember);
  zForm.Add({.kind = ControlKind::ClickLabel,
             .name = GroupName,
             .parent = zMember.frame,
             .caption = zMember.caption.CString(),
             .place = zMember.place,
             .tooltip = tooltip.c_str(),
             .index = zMember.index});
}

}  // namespace

void SoundPalette::AddRowsAndMembers(Form& zForm, std::span<const ControlRow> zRows) {
  for (const ControlRow& row : zRows) {
    zForm.Add(row);
    for (const PaletteMember& member : PaletteTable) {
      if (std::string_view(member.frame) == row.name) {
        AddMember(zForm, member);
      }
    }
  }
}

SoundPalette::SoundPalette(QWidget* zWindow, const Form& zForm, const EditorContext& zContext,
                           VoiceControls& zVoice)
    : QObject(zWindow), window_(zWindow), context_(zContext), voice_(zVoice) {
  for (ClickLabel* label : voice_.Labels()) {
    label->ShareTabStop();
  }
  for (const PaletteMember& member : PaletteTable) {
    const bool hasValue = *member.valueBox != '\0';
    Sound& sound = sounds_[static_cast<std::size_t>(member.index)];
    sound = {&member, zForm.Get<ClickLabel>(Indexed(GroupName, member.index)),
             hasValue ? zForm.Get<TextBox>(member.valueBox) : nullptr,
             context_.codeTable.GetCodeIndex(MnemonicOf(member))};
    Connect(sound);
    if (!sound.label->isHidden()) {
      sound.label->ShareTabStop();
    }
  }
}

void SoundPalette::Connect(const Sound& zSound) {
  const int index = zSound.member->index;
  connect(zSound.label, &ClickLabel::clicked, this, [=, this] { Command1_Click(index); });
  connect(zSound.label, &ClickLabel::DoubleClick, this, [=, this] { Command1_DblClick(index); });
  // These clicks end in a box, which would swallow the second press of a double click.
  zSound.label->SetHoldsClick(zSound.code == chip_code::Wait);
  if (zSound.valueBox != nullptr) {
    connect(zSound.valueBox, &TextBox::textChanged, this, [zSound] {
      zSound.valueBox->SetBackground({});
      zSound.label->SetHoldsClick(!ValueByte(zSound.valueBox->Text()));
    });
  }
}

void SoundPalette::Command1_Click(int zIndex) {
  RunBusy(window_, nullptr, [&] { Play(SoundOf(zIndex)); });
}

void SoundPalette::Play(const Sound& zSound) {
  const std::string prefix = TakePrefix();
  if (zSound.code == chip_code::Wait && !ConfirmWait()) {
    return;
  }
  const std::optional<std::string> codes = CodesOf(zSound);
  if (!codes) {
    RefuseValue(zSound);
    return;
  }
  ShowInVoiceControls(zSound);
  if (zSound.code == chip_code::Repeat) {
    context_.shared.SkipControlsOnce = true;
  }
  context_.sender.SendCodesToOrvatone(prefix + *codes, true);
}

/// The control-code prefix of a click, none after a Repeat.
std::string SoundPalette::TakePrefix() {
  const bool isSkipped = std::exchange(context_.shared.SkipControlsOnce, false);
  return !isSkipped && voice_.AppliesToSounds() ? voice_.GetControlCodes() : std::string();
}

/// What a click sends after the prefix. Nothing when the number in the value box is not a byte.
std::optional<std::string> SoundPalette::CodesOf(const Sound& zSound) const {
  if (IsNote(zSound.code)) {
    return SoundCodes(chip_code::Pitch, context_.codeTable.GetNotePitch(zSound.code));
  }
  if (zSound.valueBox == nullptr) {
    return SoundCodes(zSound.code);
  }
  const std::optional<std::uint8_t> value = ValueByte(zSound.valueBox->Text());
  return value ? std::optional(SoundCodes(zSound.code, value)) : std::nullopt;
}

void SoundPalette::ShowInVoiceControls(const Sound& zSound) {
  if (zSound.code == chip_code::Reset) {
    voice_.SetDefaults();
  } else if (IsNote(zSound.code)) {
    voice_.SetPitch(context_.codeTable.GetNotePitch(zSound.code));
  }
}

void SoundPalette::Command1_DblClick(int zIndex) {
  const Sound& sound = SoundOf(zIndex);
  std::string text = MnemonicOf(*sound.member);
  if (sound.valueBox != nullptr) {
    text += " \\" + sound.valueBox->Text();
  }
  emit InsertWanted(text);
}

bool SoundPalette::ConfirmWait() {
  return context_.prompts.Ask(window_, "Notice", WaitNotice(), PromptButtons::OkCancel) ==
         PromptAnswer::Ok;
}

void SoundPalette::RefuseValue(const Sound& zSound) {
  refusedBox_ = zSound.valueBox;
  refusedBox_->SetBackground(RefusalBackground);
  context_.prompts.Tell(window_, ValueNotice(*zSound.member));
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

}  // namespace loquitor
