#pragma once

#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

class QPushButton;

namespace loquitor {

class TextArea;

/// The codes viewer: shows the list of numbers in SharedState::OrvatoneCodes and copies it.
class frmCodes : public ToolWindow {
  Q_OBJECT
 public:
  frmCodes(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;
  void resizeEvent(QResizeEvent* zEvent) override;

 private:
  void btnCopy_Click();
  void LayOut();

  const SharedState& shared_;
  TextArea* txtCodes_;
  QPushButton* btnCopy_;
  QPushButton* btnDone_;
};

}  // namespace loquitor
