#pragma once

#include <string>

#include "ui/controls/check_box.h"
#include "ui/controls/form.h"
#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

namespace loquitor {

/// Chooses the speed of the line, sends the sync character by which the chip learns it, and writes
/// the chip's clock detune value. A chosen speed is stored at once. The detune value is not stored.
class frmBaudRate : public ToolWindow {
  Q_OBJECT
 public:
  frmBaudRate(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;

 private:
  void AddControls();
  void Option1_Click(int zIndex);
  void btnSendSyncChar_Click();
  void btnSendDetuneValue_Click();

  bool IsDetuneConfirmed(const std::string& zText);

  EditorContext context_;
  Form form_;
  OptionGroup rates_;
};

}  // namespace loquitor
