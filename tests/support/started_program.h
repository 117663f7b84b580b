#pragma once

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "tests/support/await.h"

namespace loquitor::testing {

/// A program of Windows that a test has started; ended with it. Its standard streams are pipes of
/// the test's.
class StartedProgram {
 public:
  /// `zArguments` as the command line has them after the program's name.
  StartedProgram(const std::filesystem::path& zProgram, const std::wstring& zArguments,
                 std::string_view zInput = "") {
    Pipe input;
    Pipe output;
    Pipe errors;
    std::wstring command = L"\"" + zProgram.wstring() + L"\" " + zArguments;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = Inherited(input.reading);
    start.hStdOutput = Inherited(output.writing);
    start.hStdError = Inherited(errors.writing);
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                        &start, &process_)) {
      throw std::runtime_error("cannot start " + zProgram.string());
    }
    for (const HANDLE given : {input.reading, output.writing, errors.writing}) {
      CloseHandle(given);
    }
    DWORD count = 0;
    WriteFile(input.writing, zInput.data(), static_cast<DWORD>(zInput.size()), &count, nullptr);
    CloseHandle(input.writing);
    output_ = output.reading;
    errors_ = errors.reading;
  }
  ~StartedProgram() {
    TerminateProcess(process_.hProcess, 99);
    WaitForEnd();
    for (const HANDLE handle : {process_.hProcess, process_.hThread, output_, errors_}) {
      CloseHandle(handle);
    }
  }
  StartedProgram(const StartedProgram&) = delete;
  StartedProgram& operator=(const StartedProgram&) = delete;

  /// What it has printed so far, in all.
  const std::string& Output() { return ReadOn(output_, printed_); }
  const std::string& Errors() { return ReadOn(errors_, complained_); }

  /// Presses Ctrl+C: starts the thread in it that Windows starts then. Works without a console.
  void Interrupt() {
    const FARPROC routine = GetProcAddress(GetModuleHandleW(L"kernelbase"), "CtrlRoutine");
    CloseHandle(CreateRemoteThread(
        process_.hProcess, nullptr, 0,
        reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(routine)), nullptr, 0,
        nullptr));
  }

  /// Its exit status, or 259 when it still runs after half a minute.
  DWORD WaitForEnd() {
    Await([this] {
      Output();
      Errors();
      return WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0;
    });
    DWORD status = 0;
    GetExitCodeProcess(process_.hProcess, &status);
    return status;
  }

 private:
  struct Pipe {
    Pipe() {
      if (!CreatePipe(&reading, &writing, nullptr, 1 << 16)) {
        throw std::runtime_error("no pipe");
      }
    }
    HANDLE reading;
    HANDLE writing;
  };

  static HANDLE Inherited(HANDLE zHandle) {
    SetHandleInformation(zHandle, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    return zHandle;
  }

  static const std::string& ReadOn(HANDLE zPipe, std::string& zText) {
    std::array<char, 4096> buffer;
    DWORD size = 0;
    DWORD count = 0;
    while (PeekNamedPipe(zPipe, nullptr, 0, nullptr, &size, nullptr) && size > 0 &&
           ReadFile(zPipe, buffer.data(), buffer.size(), &count, nullptr)) {
      zText.append(buffer.data(), count);
    }
    return zText;
  }

  PROCESS_INFORMATION process_{};
  HANDLE output_ = nullptr;
  HANDLE errors_ = nullptr;
  std::string printed_;
  std::string complained_;
};

}  // namespace loquitor::testing
