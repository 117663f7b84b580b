// From the start of a program to its first window on the screen, and the memory that it then holds,
// for Loquitor and for a bare Qt window, empty and with one line of text; and what Loquitor holds
// when it has looked words up in a dictionary. Needs what the end-to-end tests need.

#include "tests/e2e/loquitor_session.h"

// After GoogleTest, because this header has macros with names that GoogleTest uses.
#include <X11/Xlib.h>
#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/e2e/child_process.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using Clock = std::chrono::steady_clock;

/// An empty X server, and what is seen of its windows.
class EmptyScreen {
 public:
  EmptyScreen() : server_({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24"}) {
    if (!Await([this] { return server_.Output().find('\n') != std::string::npos; })) {
      throw std::runtime_error("Xvfb does not start");
    }
    name_ = ":" + server_.Output().substr(0, server_.Output().find('\n'));
    display_ = XOpenDisplay(name_.c_str());
    XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
    XSync(display_, False);
  }
  ~EmptyScreen() { XCloseDisplay(display_); }

  const std::string& Name() const { return name_; }

  void AwaitMappedWindow() {
    for (XEvent event; XNextEvent(display_, &event) == 0;) {
      if (event.type == MapNotify && event.xmap.override_redirect == 0) {
        return;
      }
    }
  }
  void ForgetEvents() { XSync(display_, True); }

 private:
  ChildProcess server_;
  std::string name_;
  Display* display_ = nullptr;
};

double ResidentMegabytes(pid_t zProcess) {
  std::ifstream status("/proc/" + std::to_string(zProcess) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) {
      return std::stod(line.substr(6)) / 1024;
    }
  }
  return 0;
}

void StartToFirstWindow(benchmark::State& zState, const std::vector<std::string>& zProgram) {
  EmptyScreen screen;
  double megabytes = 0;
  for (auto _ : zState) {
    screen.ForgetEvents();
    const auto start = Clock::now();
    ChildProcess program(zProgram, {{"DISPLAY", screen.Name()}, {"QT_QPA_PLATFORM", "xcb"}});
    screen.AwaitMappedWindow();
    zState.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    megabytes = ResidentMegabytes(program.Pid());
  }
  zState.counters["resident_MB"] = megabytes;
}

void BareWindow(benchmark::State& zState) {
  StartToFirstWindow(zState, {BARE_WINDOW});
}

void WindowWithText(benchmark::State& zState) {
  StartToFirstWindow(zState, {BARE_WINDOW, "Text"});
}

void WriteDictionary(const std::filesystem::path& zFolder, int zEntries) {
  std::ofstream dictionary(zFolder / "Loquitor.Dic");
  dictionary << "[words]\r\n";
  for (int word = 0; word < zEntries; ++word) {
    dictionary << "word" << word << "=\\HE \\EH \\LO \\OWWW\r\n";
  }
}

void Loquitor(benchmark::State& zState) {
  TempFolder folder;
  std::filesystem::copy_file(LOQUITOR_PROGRAM, folder / "Loquitor");
  WriteDictionary(folder.Path(), 130000);
  StartToFirstWindow(zState, {folder / "Loquitor"});
}

/// Someone who opens the phrase editor, types words of the dictionary and looks at their codes.
class LookingUp : public LoquitorSession {
 public:
  void TestBody() override {}
  double Megabytes(int zEntries) {
    SetUp();
    WriteDictionary(folder.Path(), zEntries);
    Start();
    OpenPhraseEditor();
    desktop.Type("word1 word9");
    if (ViewedCodes().find("183, 131, 146, 164") == std::string::npos) {
      throw std::runtime_error("the words were not found");
    }
    return ResidentMegabytes(loquitor->Pid());
  }
};

void LoquitorAfterLookingUp(benchmark::State& zState) {
  for (auto _ : zState) {
    zState.counters["resident_MB"] = LookingUp().Megabytes(static_cast<int>(zState.range(0)));
  }
}

BENCHMARK(BareWindow)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(WindowWithText)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(Loquitor)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(LoquitorAfterLookingUp)->Arg(10)->Arg(130000)->Iterations(1);

}  // namespace
}  // namespace loquitor::testing

BENCHMARK_MAIN();
