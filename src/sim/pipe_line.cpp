// The line of a virtual chip on Windows: a named pipe.

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <array>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <utility>

#include "sim/chip_line.h"
#include "text/wide_text.h"

namespace loquitor {

const std::string_view LinkHelp =
    "  --link PATH  the pipe to offer, for example \\\\.\\pipe\\chip or just chip; without it\n"
    "               \\\\.\\pipe\\virtual-orvatone\n";

namespace {

constexpr DWORD BufferSize = 4096;  // bytes

[[noreturn]] void Fail(const char* zWhat) {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), zWhat);
}

/// An event that stays set until it is reset; closed at its end.
class Event {
 public:
  Event() : handle_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    if (handle_ == nullptr) {
      Fail("cannot create an event");
    }
  }
  ~Event() { CloseHandle(handle_); }
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  HANDLE Get() const { return handle_; }
  bool IsSet() const { return WaitForSingleObject(handle_, 0) == WAIT_OBJECT_0; }
  void Set() { SetEvent(handle_); }
  void Reset() { ResetEvent(handle_); }
  void Await() const { WaitForSingleObject(handle_, INFINITE); }

 private:
  HANDLE handle_;
};

/// Set when Ctrl+C is pressed or the window of the console is closed.
Event& StopEvent() {
  static Event event;
  return event;
}

BOOL WINAPI AskToStop(DWORD zCause) {
  StopEvent().Set();
  if (zCause != CTRL_C_EVENT && zCause != CTRL_BREAK_EVENT) {
    Sleep(INFINITE);  // Windows ends the program when this returns, even if it still has work
  }
  return TRUE;
}

/// Standard input, read by a thread, because neither a console nor a pipe can be waited for with
/// other things. The thread reads on when the text has been taken.
class InputReader {
 public:
  InputReader() : state_(std::make_shared<State>()) {
    // It may wait in ReadFile when the program ends.
    std::thread([state = state_] { ReadAll(*state); }).detach();
  }

  HANDLE Arrived() const { return state_->arrived.Get(); }
  std::string Take() {
    if (!state_->arrived.IsSet()) {
      return {};
    }
    std::string text = std::exchange(state_->text, {});
    state_->arrived.Reset();
    state_->taken.Set();
    return text;
  }

 private:
  struct State {
    std::string text;  // the thread's, except while `arrived` is set
    Event arrived;
    Event taken;
  };

  static void ReadAll(State& zState) {
    std::array<char, 256> buffer;
    DWORD count = 0;
    while (
        ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), buffer.size(), &count, nullptr) &&
        count > 0) {
      zState.text.assign(buffer.data(), count);
      zState.taken.Reset();
      zState.arrived.Set();
      zState.taken.Await();
    }
  }

  std::shared_ptr<State> state_;
};

std::wstring PipePath(const std::string& zLink) {
  constexpr std::string_view pipes = "\\\\.\\pipe\\";
  const std::string name = zLink.empty() ? "virtual-orvatone" : zLink;
  return WideText(name.starts_with(pipes) ? name : std::string(pipes) + name);
}

class PipeLine : public ChipLine {
 public:
  explicit PipeLine(const std::string& zLink) : path_(PipePath(zLink)) {
    pipe_ = CreateNamedPipeW(
        path_.c_str(), PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
        PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, 0, BufferSize, 0, nullptr);
    if (pipe_ == INVALID_HANDLE_VALUE) {
      Refuse();
    }
    Connect();
  }
  ~PipeLine() override {
    DWORD count = 0;
    CancelIo(pipe_);
    GetOverlappedResult(pipe_, &state_, &count, TRUE);  // Windows lets go of the buffer
    CloseHandle(pipe_);
  }
  PipeLine(const PipeLine&) = delete;
  PipeLine& operator=(const PipeLine&) = delete;

  std::string Name() const override { return Utf8Text(path_); }
  std::string ReadInput() override { return input_.Take(); }
  bool IsAskedToStop() const override { return StopEvent().IsSet(); }

  void Wait(std::optional<std::chrono::milliseconds> zLongest) override {
    const std::array<HANDLE, 3> events{StopEvent().Get(), changed_.Get(), input_.Arrived()};
    const DWORD time = zLongest ? static_cast<DWORD>(zLongest->count()) : INFINITE;
    if (WaitForMultipleObjects(events.size(), events.data(), FALSE, time) == WAIT_FAILED) {
      Fail("cannot wait for bytes");
    }
  }

  std::string Read() override {
    while (changed_.IsSet()) {
      DWORD count = 0;
      const bool hasWorked = GetOverlappedResult(pipe_, &state_, &count, FALSE) != 0;
      if (!hasWorked) {
        Connect();  // the program at the other end has closed it
        continue;
      }
      const std::string bytes(buffer_.data(), std::exchange(isConnected_, true) ? count : 0);
      StartReading();
      if (!bytes.empty()) {
        return bytes;
      }
    }
    return {};
  }

 private:
  [[noreturn]] void Refuse() const {
    const DWORD error = GetLastError();
    if (error == ERROR_ACCESS_DENIED || error == ERROR_PIPE_BUSY) {
      throw std::runtime_error(Name() +
                               " is the port of another virtual Orvatone, which is running; end "
                               "that one or choose another name");
    }
    throw std::system_error(static_cast<int>(error), std::system_category(),
                            "cannot create the pipe " + Name());
  }

  void Prepare() {
    changed_.Reset();
    state_ = OVERLAPPED{};
    state_.hEvent = changed_.Get();
  }

  /// Waits for the next program that opens the pipe.
  void Connect() {
    isConnected_ = false;
    DisconnectNamedPipe(pipe_);  // fails the first time, when nobody was connected yet
    Prepare();
    if (ConnectNamedPipe(pipe_, &state_) || GetLastError() == ERROR_IO_PENDING) {
      return;
    }
    const bool isEarly = GetLastError() == ERROR_PIPE_CONNECTED || GetLastError() == ERROR_NO_DATA;
    if (!isEarly) {  // a program that has opened it already, and may have closed it
      Fail("cannot wait for a program that opens the pipe");
    }
    isConnected_ = true;
    StartReading();
  }

  /// A pipe that was closed meanwhile completes the read with its failure.
  void StartReading() {
    Prepare();
    if (!ReadFile(pipe_, buffer_.data(), BufferSize, nullptr, &state_) &&
        GetLastError() != ERROR_IO_PENDING) {
      Connect();
    }
  }

  const std::wstring path_;
  HANDLE pipe_;
  Event changed_;  // when a program has opened the pipe, sent or closed it
  OVERLAPPED state_{};
  std::array<char, BufferSize> buffer_;
  bool isConnected_ = false;
  InputReader input_;
};

}  // namespace

std::unique_ptr<ChipLine> OfferChipLine(const std::string& zLink) {
  SetConsoleCtrlHandler(AskToStop, TRUE);
  return std::make_unique<PipeLine>(zLink);
}

}  // namespace loquitor
