#pragma once

#include <string>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "link/code_sender.h"
#include "link/settings_file.h"
#include "ui/toolkit/prompts.h"

namespace loquitor {

/// What the windows pass to each other; the main window owns the one there is. Texts are
/// Windows-1252 bytes.
struct SharedState {
  std::string PhraseToMove;       ///< Say Data handed to the phrase editor and returned by Done
  std::string WordToMove;         ///< the dictionary word that travels with it
  std::string OrvatoneCodes;      ///< the list of numbers that the codes viewer shows
  bool SkipControlsOnce = false;  ///< the next palette click goes without the control-code prefix
};

/// What an editor needs of the program. Everything outlives the editor.
struct EditorContext {
  const CodeTable& codeTable;
  const SayDataTranslator& translator;
  const DictionaryStore& dictionary;
  const SettingsFile& settings;
  CodeSender& sender;
  Prompts& prompts;
  SharedState& shared;
};

}  // namespace loquitor
