#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "link/code_sender.h"
#include "link/settings_file.h"
#include "tests/support/scripted_host.h"
#include "tests/support/scripted_port.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/temp_folder.h"
#include "ui/toolkit/editor_context.h"

namespace loquitor::testing {

/// The program without its main window: real files in a folder of the test's own, a scripted port
/// and scripted answers.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() { codeTable.BuildCodeTable(); }

  /// Writes the dictionary, one section with these entries.
  void GivenDictionary(std::string_view zEntries) {
    WriteBytes(folder / "Loquitor.Dic", "[words]\r\n" + std::string(zEntries));
  }

  /// What has gone out on the line since the last call.
  std::string Sent() { return port.TakeWritten(); }

  TempFolder folder;
  CodeTable codeTable;
  DictionaryStore dictionary{folder.Path()};
  SettingsFile settings{folder.Path()};
  SayDataTranslator translator{codeTable, dictionary};
  ScriptedPort port;
  ScriptedHost host;
  CodeSender sender{port, host, settings};
  ScriptedPrompts prompts;
  SharedState shared;
  EditorContext context{codeTable, translator, dictionary, settings, sender, prompts, shared};
};

}  // namespace loquitor::testing
