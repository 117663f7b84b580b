#pragma once

#include <optional>

#include "english/english_reader.h"
#include "ui/windows/editor_context.h"

namespace loquitor {

/// Owns what the editors share, and makes their EditorContext.
class ProgramParts {
 public:
  /// All arguments outlive this object. `zPhones` is null in a build that cannot read English.
  ProgramParts(CodeSender& zSender, const SettingsFile& zSettings,
               const DictionaryStore& zDictionary, Prompts& zPrompts, PhoneSource* zPhones)
      : translator_(codeTable_, zDictionary), context_{codeTable_, translator_, zDictionary,
                                                       zSettings,  zSender,     zPrompts,
                                                       shared_} {
    if (zPhones != nullptr) {
      context_.english = &english_.emplace(*zPhones, codeTable_);
    }
  }

  /// Fills the code table, which is empty before.
  void BuildCodeTable() { codeTable_.BuildCodeTable(); }

  /// Lives as long as this object.
  const EditorContext& Context() const { return context_; }

 private:
  CodeTable codeTable_;
  SayDataTranslator translator_;
  SharedState shared_;
  std::optional<EnglishReader> english_;
  EditorContext context_;
};

}  // namespace loquitor
