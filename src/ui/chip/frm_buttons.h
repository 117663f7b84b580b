#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/chip/event_configuration.h"
#include "ui/controls/form.h"
#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

namespace loquitor {

class CheckBox;
class ChipWrite;
class OptionGroup;
class TextBox;

/// The editor of the chip's reactions to power-up and to its inputs, and of its input, output and
/// node settings. The settings file keeps all of it between runs, except the node.
class frmButtons : public ToolWindow {
  Q_OBJECT
 public:
  frmButtons(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;
  void Unload() override;

 private:
  /// A control whose state the settings file keeps, as text.
  struct StoredControl {
    std::string key;
    const char* initial;  ///< the text when nothing is stored
    std::function<void(std::string_view)> show;
    std::function<std::string()> read;
  };

  /// All stored controls, in the order of the settings file.
  std::vector<StoredControl> StoredControls() const;
  static StoredControl Stored(std::string zKey, const char* zInitial, CheckBox* zBox);
  static StoredControl Stored(std::string zKey, TextBox* zBox);
  StoredControl StoredOption(int zIndex) const;

  CheckBox* Check(const char* zName, int zRow) const;
  TextBox* PhraseBox(int zRow) const;
  OptionGroup* PairOf(int zIndex) const { return pairs_[static_cast<std::size_t>(zIndex / 2)]; }

  EventSetting ReadEvent(int zRow) const;
  EventConfiguration ReadControls() const;

  /// A number box and the name of its row.
  struct NumberBox {
    QString row;
    TextBox* box;
  };
  /// The boxes whose text cannot be sent, in row order.
  std::vector<NumberBox> UnusableNumbers() const;
  void Report(const std::vector<NumberBox>& zUnusable);
  void WriteEvents();

  void btnWrite_Click();
  void btnShutUp_Click();
  void txtPhrase_Change(int zIndex);
  void txtPhrase_LostFocus(int zIndex);

  EditorContext context_;
  Form form_;
  std::array<OptionGroup*, OptionCount / 2> pairs_{};
  ChipWrite* write_ = nullptr;
};

}  // namespace loquitor
