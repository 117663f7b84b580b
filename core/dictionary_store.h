#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace loquitor {

class ProfileIndex;

/// The pronunciation dictionary (Loquitor.Dic) in the program's folder, read and written a word at
/// a time. Never stale: each call proves what it knows against the file. Texts are Windows-1252
/// bytes.
class DictionaryStore {
 public:
  static constexpr std::string_view Section = "Words";  ///< the one section of the file

  /// `zFolder` is the folder of the program.
  explicit DictionaryStore(std::filesystem::path zFolder);

  /// The entry of `zWord` (any letter case), at most 2559 bytes, without blanks around it or
  /// trailing NULs; `zDefault`, cut and trimmed likewise, when the file, the section or the word is
  /// missing. An entry that is present and empty gives the empty text.
  std::string GetDictionaryValue(std::string_view zSection, std::string_view zWord,
                                 std::string_view zDefault) const;

  /// Stores `zValue` under `zWord`. Line breaks in it become blanks. False when it could not be
  /// stored (callers that have to be silent ignore it knowingly).
  bool SaveDictionaryValue(std::string_view zSection, std::string_view zWord,
                           std::string_view zValue) const;

  /// GetDictionaryValue for `zIndex`, the dictionary file as a caller has it at hand. The view
  /// lives as long as the index and `zDefault`.
  static std::string_view EntryIn(const ProfileIndex& zIndex, std::string_view zWord,
                                  std::string_view zDefault = {});

  /// The path of the dictionary file.
  const std::filesystem::path& File() const { return file_; }

 private:
  std::filesystem::path file_;
};

}  // namespace loquitor
