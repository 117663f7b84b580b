#pragma once

#include <QObject>
#include <string>

#include "ui/phrase/palette_table.h"
#include "ui/phrase/voice_controls.h"
#include "ui/toolkit/editor_context.h"
#include "ui/toolkit/form.h"

namespace loquitor {

/// The sound palette of the phrase editor: a click on a member plays it, a double click also asks
/// for its mnemonic to be inserted into the Say Data.
class SoundPalette : public QObject {
  Q_OBJECT
 public:
  /// Adds the members to `zForm`, whose frames must stand there.
  static void AddTo(Form& zForm);

  /// The members, their value boxes and their frames must stand in `zForm`. `zWindow` is the window
  /// that shows the hourglass and owns the messages.
  SoundPalette(QWidget* zWindow, const Form& zForm, const EditorContext& zContext,
               VoiceControls& zVoice);

  /// Takes the user to the value box that has just been refused, if there is one. For the window,
  /// which becomes active again when the message has been read.
  void FocusRefusedBox();

 signals:
  /// `zText` is to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

 private:
  void Command1_Click(int zIndex);
  void Command1_DblClick(int zIndex);
  bool ConfirmWait();
  void RefuseValue(const PaletteMember& zMember);
  TextBox* ValueBoxOf(const PaletteMember& zMember) const;
  std::string ValueTextOf(const PaletteMember& zMember) const;
  void Connect(const PaletteMember& zMember);
  void ConnectKeys();

  QWidget* window_;
  const Form form_;
  const EditorContext context_;
  VoiceControls& voice_;
  TextBox* refusedBox_ = nullptr;  ///< until it has been given the focus
};

}  // namespace loquitor
