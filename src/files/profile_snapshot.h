#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "files/platform_files.h"

namespace loquitor {

/// One state of a profile file, with an index of its keys. Never changes.
///
/// Reading it takes time proportional to its size. A lookup takes constant time, or logarithmic
/// time for a name whose hash many others share; no content of the file makes it slower.
class ProfileSnapshot {
 public:
  /// Indexes `zFile`. A default-constructed one is an empty file.
  explicit ProfileSnapshot(LoadedFile zFile = {});

  /// The value of the first key `zKey` in the first section `zSection`, in any letter case and with
  /// blanks around the names ignored. The value comes without the blanks and the quotation marks
  /// around it. Nothing when there is no such key. The view lives as long as the snapshot.
  std::optional<std::string_view> Find(std::string_view zSection, std::string_view zKey) const;

  /// The names of the sections, each once, in the order of the file.
  std::vector<std::string_view> SectionNames() const;

  /// The whole text.
  std::string_view Text() const { return file_.View(); }

 private:
  using Number = std::uint32_t;  ///< of an entry; 0 is none

  /// A key, or the header of a section.
  struct Entry {
    std::string_view name;
    std::string_view value;  ///< of a key
    Number section = 0;      ///< the header above a key; 0 for a header
    std::uint32_t hash = 0;  ///< of name and section
  };

  static Entry EntryFor(Number zSection, std::string_view zName, std::string_view zValue = {});
  void ReadEntries();
  void Index(Number zEntry);
  std::optional<std::size_t> SlotOf(const Entry& zSought) const;
  Number Find(const Entry& zSought) const;

  LoadedFile file_;
  std::vector<Entry> entries_;  ///< in the order of the file; the first is a placeholder
  std::vector<Number> slots_;   ///< hash table with open addressing, at most half full
  /// The entries that found no slot close to their hash, by section and name in lower case.
  std::map<std::pair<Number, std::string>, Number> crowded_;
};

}  // namespace loquitor
