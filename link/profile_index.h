#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "link/platform_files.h"

namespace loquitor {

/// Finds the values of one profile text without scanning it. Immutable once made.
///
/// One open hash table for all keys: 8 bytes a slot, a 32-bit tag and the place of the key in the
/// text; the keys and values themselves stay in the text. Only the first of several sections of one
/// name is in it, and only the first of several keys of one name in it.
class ProfileIndex {
 public:
  /// Takes the bytes of a file and indexes them, in time proportional to their number.
  explicit ProfileIndex(LoadedFile zFile);

  /// The value that stands under `zSection` and `zKey` (any letter case, blanks around them
  /// ignored), without the blanks and the quotation marks around it; nothing when it is not there.
  /// The view lives as long as the index.
  std::optional<std::string_view> Find(std::string_view zSection, std::string_view zKey) const;

  /// The names of the sections that can be read, in the order of the file.
  std::vector<std::string_view> SectionNames() const;

  /// The whole text.
  std::string_view Text() const { return file_.View(); }

 private:
  /// The body of a section: the bytes between its header line and the next.
  struct Section {
    std::string_view name;
    std::size_t begin;
    std::size_t end;
  };
  struct Slot {
    std::uint32_t tag = 0;
    std::uint32_t place = 0;  ///< 0 when free; no key stands there, because a header comes first
  };
  struct HashName {
    std::size_t operator()(std::string_view zName) const;
  };
  struct SameName {
    bool operator()(std::string_view zLeft, std::string_view zRight) const;
  };

  std::vector<Slot> ReadLines();
  bool OpenSection(std::string_view zName, std::size_t zBegin);
  void FillSlots(const std::vector<Slot>& zEntries);
  void Insert(const Slot& zEntry);
  const Section& SectionAround(std::size_t zPlace) const;
  std::optional<std::size_t> ValuePlace(const Slot& zSlot, const Section& zSection,
                                        std::string_view zKey) const;
  std::string_view ValueFrom(std::size_t zPlace) const;

  LoadedFile file_;
  std::vector<Section> sections_;
  std::unordered_map<std::string_view, std::size_t, HashName, SameName> sectionsByName_;
  std::vector<Slot> slots_;  ///< a power of two of them, at most half of them taken
};

}  // namespace loquitor
