#pragma once

#include <string>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "files/settings_file.h"
#include "line/code_sender.h"
#include "ui/windows/prompts.h"

namespace loquitor {

class EnglishReader;

/// What the windows pass to each other. There is one, which the main window owns. Texts are
/// Windows-1252 bytes.
struct SharedState {
  std::string PhraseToMove;       ///< Say Data handed to the phrase editor and returned by Done
  std::string WordToMove;         ///< the dictionary word that travels with it
  std::string OrvatoneCodes;      ///< the list of numbers that the codes viewer shows
  bool SkipControlsOnce = false;  ///< the next palette click goes without the control-code prefix
  SendTicket EepromWrite;         ///< the last write of the EEPROM editor
  SendTicket EventWrite;          ///< the last write of the event configuration
};

/// What an editor needs of the program. All of it outlives the editor.
struct EditorContext {
  const CodeTable& codeTable;
  const SayDataTranslator& translator;
  const DictionaryStore& dictionary;
  const SettingsFile& settings;
  CodeSender& sender;
  Prompts& prompts;
  SharedState& shared;
  const EnglishReader* english = nullptr;  ///< null in a build that cannot read English
};

}  // namespace loquitor
