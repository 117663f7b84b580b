#pragma once

#include <QCoreApplication>
#include <string>

#include "link/code_sender.h"

namespace loquitor::testing {

/// The main window's side of sending, for tests of other windows.
class ScriptedHost : public SenderHost {
 public:
  std::string PortDevice() const override { return "scripted"; }
  bool IsFlowControlTicked() const override { return isFlowControlTicked; }
  void ShowPortState(PortState zState) override { portState = zState; }
  bool ConfirmLongPhrase() override {
    ++longPhraseQuestions;
    return sendsLongPhrases;
  }
  void LetEventsRun(UserInput zInput) override {
    QCoreApplication::processEvents(FlagsFor(zInput));
  }
  void WaitForEvents(UserInput zInput) override {
    QCoreApplication::processEvents(FlagsFor(zInput), 1);
  }
  void SetTicking(bool zIsOn) override { isTicking = zIsOn; }
  void StopClosingTimer() override { isTimerRunning = false; }
  void StartClosingTimer(int) override { isTimerRunning = true; }

  bool isFlowControlTicked = true;
  bool sendsLongPhrases = true;
  int longPhraseQuestions = 0;
  bool isTimerRunning = false;
  bool isTicking = false;
  PortState portState = PortState::Closed;

 private:
  static QEventLoop::ProcessEventsFlags FlagsFor(UserInput zInput) {
    return zInput == UserInput::Now ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents;
  }
};

}  // namespace loquitor::testing
