#pragma once

#include <QObject>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "ui/controls/click_label.h"
#include "ui/controls/form.h"
#include "ui/phrase/palette_table.h"
#include "ui/phrase/voice_controls.h"
#include "ui/windows/editor_context.h"

namespace loquitor {

/// The sound palette of the phrase editor. A click on a member plays it. A double click also asks
/// for its mnemonic, with the text of its value box if it has one, to be inserted into the Say
/// Data.
class SoundPalette : public QObject {
  Q_OBJECT
 public:
  /// Adds `zRows` to `zForm`, and after each frame the members that it holds.
  static void AddRowsAndMembers(Form& zForm, std::span<const ControlRow> zRows);

  /// `zForm` has the members, their value boxes and their frames. `zWindow` owns this object and
  /// the messages, and shows the hourglass.
  SoundPalette(QWidget* zWindow, const Form& zForm, const EditorContext& zContext,
               VoiceControls& zVoice);

  /// Moves the focus to the value box whose text was refused last, once for each refusal. To be
  /// called when the window has become active again after the message.
  void FocusRefusedBox();

 signals:
  /// `zText` is to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

 private:
  /// A member of the palette with its controls.
  struct Sound {
    const PaletteMember* member = nullptr;
    ClickLabel* label = nullptr;
    TextBox* valueBox = nullptr;  ///< null for a member without value
    std::int16_t code = 0;        ///< its index in the code table
  };

  void Connect(const Sound& zSound);
  const Sound& SoundOf(int zIndex) const { return sounds_[static_cast<std::size_t>(zIndex)]; }

  void Command1_Click(int zIndex);
  void Command1_DblClick(int zIndex);
  void Play(const Sound& zSound);
  bool ConfirmWait();
  std::string TakePrefix();
  std::optional<std::string> CodesOf(const Sound& zSound) const;
  void ShowInVoiceControls(const Sound& zSound);
  void RefuseValue(const Sound& zSound);

  QWidget* window_;
  const EditorContext context_;
  VoiceControls& voice_;
  std::array<Sound, PaletteIndexCount> sounds_{};  ///< by index in the control group
  TextBox* refusedBox_ = nullptr;                  ///< until it gets the focus
};

}  // namespace loquitor
