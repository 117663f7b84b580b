#pragma once

#include <QPointer>
#include <QWidget>

#include "ui/controls/form.h"
#include "ui/main/desktop_sender.h"
#include "ui/main/program_parts.h"

namespace loquitor {

class ToolWindow;

/// The main window: holds the serial settings, shows the state of the port, tests the connection
/// and opens the editors. Closing it ends the program.
class frmUtility : public QWidget {
  Q_OBJECT
 public:
  /// All references outlive the window. Without `zPhones` the editors cannot read English.
  frmUtility(SerialPort& zPort, const SettingsFile& zSettings, const DictionaryStore& zDictionary,
             Prompts& zPrompts, PhoneSource* zPhones = nullptr);
  ~frmUtility() override;

  /// Shows the window. The first time, loads the settings and centres it on the screen.
  void Open();

  /// What the editors are given. Lives as long as the window.
  const EditorContext& Context() const { return parts_.Context(); }

 protected:
  void closeEvent(QCloseEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  void ConnectControls();
  void Load();
  void Unload();
  void CloseEditors();

  template <class Editor>
  void ShowEditor();

  void EditPhrases_Click();
  void cmdTestSerialPort_Click();
  void txtComPort_LostFocus();

  const SettingsFile& settings_;
  Form form_;
  TextBox* txtComPort_;
  CheckBox* chkFlow_;
  DesktopSender serial_;
  ProgramParts parts_;
  QPointer<ToolWindow> openEditor_;  // the one that was opened last
  bool isLoaded_ = false;
  bool isUnloaded_ = false;
};

}  // namespace loquitor
