#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "line/win32/win_turns.h"

#include <windows.h>
// After windows.h, which it needs.
#include <mmsystem.h>

#include <utility>

namespace loquitor {

namespace {

// A queue of sixteen bytes lasts 8 ms at 19200 bits per second. A tick every 2 ms keeps it filled.
constexpr DWORD TickMilliseconds = 2;

constexpr UINT ClockMilliseconds = 1;  // otherwise Windows sleeps 16 ms at a time

}  // namespace

WinTurns::WinTurns(std::function<void()> zOnTick) : onTick_(std::move(zOnTick)) {
  timeBeginPeriod(ClockMilliseconds);
}

WinTurns::~WinTurns() {
  timeEndPeriod(ClockMilliseconds);
}

void WinTurns::RunLater(std::function<void()> zAction) {
  later_.push_back(std::move(zAction));
}

void WinTurns::LetEventsRun(UserInput) {
  for (const auto& action : std::exchange(later_, {})) {
    action();
  }
}

void WinTurns::WaitForEvents(UserInput zInput) {
  Sleep(TickMilliseconds);
  LetEventsRun(zInput);
  if (isTicking_) {
    onTick_();
  }
}

}  // namespace loquitor
