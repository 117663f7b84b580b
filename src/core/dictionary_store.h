#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "files/profile_file.h"

namespace loquitor {

/// One state of the dictionary, for many lookups. Never changes.
class DictionarySnapshot {
 public:
  /// `zFile` is one state of the dictionary's file; not null.
  explicit DictionarySnapshot(std::shared_ptr<const ProfileSnapshot> zFile);

  /// The entry of `zWord` as DictionaryStore::GetDictionaryValue gives it, or the empty text when
  /// the word is missing. The view lives as long as the snapshot.
  std::string_view Entry(std::string_view zWord) const;

  /// What loading the words of `zWords` puts into an empty Say Data box: the entry of each word and
  /// a space.
  std::string SayDataOf(std::string_view zWords) const;

  /// The whole text of the file.
  std::string_view Text() const { return file_->Text(); }

 private:
  std::shared_ptr<const ProfileSnapshot> file_;
};

/// The pronunciation dictionary (Loquitor.Dic), read and written word by word. Every call reads or
/// writes the file itself: nothing is kept in memory that could be stale. All texts are bytes in
/// Windows-1252.
class DictionaryStore {
 public:
  static constexpr std::string_view Section = "Words";  ///< the one section of the file

  static constexpr std::size_t MaxEntry = 2559;  ///< the most bytes of an entry that are read

  /// `zFolder` is the folder of the program's files.
  explicit DictionaryStore(const std::filesystem::path& zFolder);

  /// The entry of `zWord` (any letter case) in section `zSection`, cut to MaxEntry bytes and
  /// trimmed by TrimSpacesAndNuls. When the file, the section or the word is missing, the result is
  /// `zDefault`, cut and trimmed the same way. An entry that is present and empty gives the empty
  /// text.
  std::string GetDictionaryValue(std::string_view zSection, std::string_view zWord,
                                 std::string_view zDefault) const;

  /// Stores `zValue` under `zWord` in section `zSection`, without its line breaks. False when it
  /// could not be stored; see ProfileFile::Write.
  bool SaveDictionaryValue(std::string_view zSection, std::string_view zWord,
                           std::string_view zValue) const;

  /// Stores all `zEntries` in Section, in one change of the file. False when any of them could not
  /// be stored; then none is.
  bool SaveEntries(std::span<const ProfileValue> zEntries) const {
    return file_.Write(Section, zEntries);
  }

  /// The dictionary as it is now.
  DictionarySnapshot Snapshot() const { return DictionarySnapshot(file_.Snapshot()); }

  /// The path of the dictionary file.
  const std::filesystem::path& File() const { return file_.Path(); }

 private:
  ProfileFile file_;
};

}  // namespace loquitor
