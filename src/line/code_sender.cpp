#include "line/code_sender.h"

#include "files/settings_file.h"
#include "line/scp.h"

namespace loquitor {

namespace {

constexpr std::size_t LongestUnasked = 64;  // codes of a phrase that the chip's own buffer holds
constexpr int ClosingDelay = 1000;          // milliseconds
constexpr int DeepestSend = 8;              // nested sends; each takes a few kilobytes of stack

// A turn lasts 2 ms at most, so these are 0.2 s. A register write takes less even at 2400 baud.
constexpr int TurnsBeforeUserActs = 100;

}  // namespace

CodeSender::CodeSender(SerialPort& zPort, SenderHost& zHost, const SettingsFile& zSettings)
    : port_(zPort), host_(zHost), settings_(zSettings) {
  port_.SetFailureHandler([this] { OnPortFailed(); });
}

CodeSender::~CodeSender() {
  port_.SetFailureHandler({});
}

void CodeSender::SendCodesToOrvatone(std::string_view zCodes, bool zIsPhrase, SendTicket* zTicket) {
  host_.StopClosingTimer();
  isClosingSoon_ = false;
  if (IsRefused(zCodes, zIsPhrase)) {
    return;
  }
  current_ = ++sendCount_;
  if (zTicket != nullptr) {
    *zTicket = SendTicket(sendCount_);
  }
  if (OpenSerialPort(zIsPhrase)) {
    port_.DiscardReceived();
    if (depth_ >= DeepestSend) {
      queue_.Add(zCodes, zIsPhrase);
      WriteWithoutUserInput();
      return;  // the closing timer starts when the innermost send ends
    }
    queue_.Replace(zCodes, zIsPhrase);
    WritePendingOutput();
  }
  current_ = 0;
  StartClosingTimer();
}

void CodeSender::StartClosingTimer() {
  isClosingSoon_ = true;
  host_.StartClosingTimer(ClosingDelay);
}

void CodeSender::ShutUp() {
  ClearPendingOutput();
  SendCodesToOrvatone(StopSequence(), false);
}

void CodeSender::CloseSerialPort() {
  if (!port_.IsOpen()) {
    return;
  }
  port_.Close();
  isPortShownOpen_ = false;
  ClearPendingOutput();
  host_.ShowPortState(PortState::Closed);
}

void CodeSender::Tick() {
  queue_.BeginTurn();
  if (!queue_.IsEmpty() && port_.IsReadyForByte()) {
    WriteNextByte();
  }
  if (IsSending() && !isClosingSoon_ && IsDone()) {
    StartClosingTimer();
  }
}

bool CodeSender::IsRefused(std::string_view zCodes, bool zIsPhrase) {
  return zIsPhrase && zCodes.size() > LongestUnasked && !host_.IsFlowControlTicked() &&
         !host_.ConfirmLongPhrase();
}

bool CodeSender::OpenSerialPort(bool zIsPhrase) {
  failure_ = port_.IsOpen() ? PortFailure() : TryToOpen(zIsPhrase);
  isPortShownOpen_ = !HasFailed();
  host_.ShowPortState(isPortShownOpen_ ? PortState::Open : PortState::Failed);
  return isPortShownOpen_;
}

PortFailure CodeSender::TryToOpen(bool zIsPhrase) {
  const std::string device = host_.PortDevice();
  if (device.empty()) {
    return {.error = PortError::NoDevice};
  }
  device_ = device;
  return port_.Open({.device = device,
                     .baudRate = settings_.GetIniValue("Serial", "BaudRate", "9600"),
                     .hardwareHandshaking = zIsPhrase && host_.IsFlowControlTicked()});
}

void CodeSender::WriteWithoutUserInput() {
  if (depth_ > DeepestSend) {
    return;  // made by a timer during another send beyond the depth, which writes these bytes too
  }
  ++depth_;
  for (int turns = 0; turns < TurnsBeforeUserActs && !isLineSlow_ && !queue_.IsEmpty(); ++turns) {
    TakeTurn(UserInput::Later);
  }
  --depth_;
  isLineSlow_ = !queue_.IsEmpty();
}

void CodeSender::WritePendingOutput() {
  if (depth_++ == 0) {
    host_.SetTicking(true);
  }
  while (port_.IsOpen() && !IsDone()) {
    queue_.BeginTurn();
    TakeTurn(UserInput::Now);
  }
  if (!port_.IsOpen()) {
    OnPortFailed();
  }
  ClearPendingOutput();
  if (--depth_ == 0) {
    host_.SetTicking(false);
  }
}

void CodeSender::TakeTurn(UserInput zInput) {
  const UserInput input = inputHolds_ > 0 ? UserInput::Later : zInput;
  if (!queue_.IsEmpty() && port_.IsReadyForByte()) {
    WriteNextByte();
    host_.LetEventsRun(input);
  } else {
    host_.WaitForEvents(input);
  }
}

/// The closing timer starts only after the port's own queue has gone out. Otherwise a line that is
/// held back for a second would cost a phrase its last sounds.
bool CodeSender::IsDone() const {
  return queue_.IsEmpty() && (queue_.WasCleared() || port_.UnsentBytes() == 0);
}

void CodeSender::WriteNextByte() {
  isLineSlow_ = false;
  const auto byte = static_cast<std::uint8_t>(queue_.TakeByte());
  if (!port_.WriteByte(byte)) {
    OnPortFailed();
  }
}

void CodeSender::OnPortFailed() {
  if (!isPortShownOpen_) {
    return;  // closed on purpose, or shown already
  }
  isPortShownOpen_ = false;
  failure_ = {.error = PortError::Lost, .device = device_};
  ClearPendingOutput();
  port_.Close();
  host_.ShowPortState(PortState::Failed);
}

}  // namespace loquitor
