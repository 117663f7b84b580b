#pragma once

#include <filesystem>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "files/settings_file.h"
#include "line/code_sender.h"
#include "tests/support/scripted_host.h"
#include "tests/support/scripted_port.h"
#include "tests/support/scripted_prompts.h"
#include "ui/windows/editor_context.h"

namespace loquitor::testing {

/// The program without its main window, for tests and benchmarks that open windows: with the real
/// files of a folder, a scripted port and scripted answers.
struct Program {
  explicit Program(const std::filesystem::path& zFolder) : dictionary(zFolder), settings(zFolder) {
    codeTable.BuildCodeTable();
  }

  CodeTable codeTable;
  DictionaryStore dictionary;
  SettingsFile settings;
  SayDataTranslator translator{codeTable, dictionary};
  ScriptedPort port;
  ScriptedHost host;
  CodeSender sender{port, host, settings};
  ScriptedPrompts prompts;
  SharedState shared;
  EditorContext context{codeTable, translator, dictionary, settings, sender, prompts, shared};
};

}  // namespace loquitor::testing
