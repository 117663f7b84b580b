#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <optional>

#include "link/qt/event_turns.h"
#include "ui/toolkit/editor_context.h"

namespace loquitor {

class CheckBox;
class Form;
class TextBox;
class ToolWindow;

/// The main window: holds the serial settings, the timer that closes the port and the port box that
/// shows its state, tests the connection and opens the editors. Closing it ends the program.
class frmUtility : public QWidget, private SenderHost {
  Q_OBJECT
 public:
  /// All of them outlive the window.
  frmUtility(SerialPort& zPort, const SettingsFile& zSettings, const DictionaryStore& zDictionary,
             Prompts& zPrompts);
  ~frmUtility() override;

  /// Loads the settings and shows the window in the middle of the screen.
  void Open();

  /// What the editors get. Lives as long as the window.
  const EditorContext& Context() const { return context_; }

 protected:
  void closeEvent(QCloseEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  void ConnectControls(const Form& zForm);
  void Load();
  void Unload();
  void CloseEditors();

  template <class Editor>
  void ShowEditor();
  template <class Editor>
  void ShowOnClick(const Form& zForm, const char* zButton);

  void EditPhrases_Click();
  void cmdTestSerialPort_Click();
  void txtComPort_LostFocus();
  void Timer1_Timer();

  std::string PortDevice() const override;
  bool IsFlowControlTicked() const override;
  void ShowPortState(PortState zState) override;
  bool ConfirmLongPhrase() override;
  void StopClosingTimer() override;
  void StartClosingTimer(int zMilliseconds) override;
  void LetEventsRun(UserInput zInput) override { turns_.LetEventsRun(zInput); }
  void WaitForEvents(UserInput zInput) override { turns_.WaitForEvents(zInput); }
  void SetTicking(bool zIsOn) override { turns_.SetTicking(zIsOn); }

  SerialPort& MSComm1_;
  const SettingsFile& settings_;
  CodeTable codeTable_;
  SayDataTranslator translator_;
  SharedState shared_;
  CodeSender sender_;
  EventTurns turns_;
  EditorContext context_;

  TextBox* txtComPort_ = nullptr;
  CheckBox* chkFlow_ = nullptr;
  QTimer Timer1_{this};
  QPointer<ToolWindow> openEditor_;  // the one that was opened last
  bool isLoaded_ = false;
  bool isUnloaded_ = false;
};

}  // namespace loquitor
