#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "ui/chip/event_configuration.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/editor_context.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/tool_window.h"

namespace loquitor {

/// The editor of the chip's reactions to power-up and to its inputs, and of its input, output and
/// node settings. The settings file keeps all of it between runs, but for the node.
class frmButtons : public ToolWindow {
  Q_OBJECT
 public:
  frmButtons(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;
  void Unload() override;

 private:
  void AddEvents();
  void AddEventRow(int zRow);
  void AddCheck(const char* zName, int zColumn, int zRow);
  void NameAfterColumn(QWidget* zControl, int zColumn, int zRow);
  void AddOption(int zIndex);

  CheckBox* Check(const char* zName, int zRow) const;
  TextBox* PhraseBox(int zRow) const;
  OptionGroup* PairOf(int zIndex) const { return pairs_[static_cast<std::size_t>(zIndex / 2)]; }

  EventSetting ReadEvent(int zRow) const;
  EventConfiguration ReadControls() const;

  /// A number box and what its row is called.
  struct NumberBox {
    QString row;
    TextBox* box;
  };
  /// The boxes that hold nothing that can be sent, in row order.
  std::vector<NumberBox> UnusableNumbers() const;
  void Report(const std::vector<NumberBox>& zUnusable);

  void btnWrite_Click();
  void btnShutUp_Click();
  void btnDone_Click();
  void txtPhrase_LostFocus(int zIndex);

  EditorContext context_;
  Form form_;
  std::array<OptionGroup*, OptionCount / 2> pairs_{};
  std::size_t lastWrite_ = 0;  ///< which one of the sender's sends was the last write
};

}  // namespace loquitor
