#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <string>

#include "line/code_sender.h"

namespace loquitor::testing {

/// A main window whose user acts from a list: one act in each turn of the event loop.
class TurnHost : public SenderHost {
 public:
  std::string PortDevice() const override { return device; }
  bool IsFlowControlTicked() const override { return isFlowControlTicked; }
  void ShowPortState(PortState zState) override {
    portState = zState;
    log += zState == PortState::Open ? "green " : zState == PortState::Closed ? "white " : "red ";
  }
  bool ConfirmLongPhrase() override {
    log += "question ";
    ++longPhraseQuestions;
    return sendsLongPhrases;
  }
  void StopClosingTimer() override { isTimerRunning = false; }
  void StartClosingTimer(int zMilliseconds) override {
    isTimerRunning = true;
    closingDelay = zMilliseconds;
  }
  void LetEventsRun(UserInput zInput) override { RunTurn(zInput); }
  void WaitForEvents(UserInput zInput) override {
    ++waits;
    RunTurn(zInput);
  }
  void SetTicking(bool zIsOn) override { isTicking = zIsOn; }

  std::string device = "scripted";
  bool isFlowControlTicked = true;
  bool sendsLongPhrases = true;
  int longPhraseQuestions = 0;
  bool isTimerRunning = false;
  bool isTicking = false;
  int closingDelay = 0;
  int waits = 0;
  int turnsWithinEachOther = 0;
  int deepest = 0;
  PortState portState = PortState::Closed;
  std::string log;
  std::deque<std::function<void()>> acts;

 private:
  void RunTurn(UserInput zInput) {
    deepest = std::max(deepest, ++turnsWithinEachOther);
    if (!acts.empty() && zInput == UserInput::Now) {
      const auto act = acts.front();
      acts.pop_front();
      act();
    }
    --turnsWithinEachOther;
  }
};

}  // namespace loquitor::testing
