#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
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
  struct Header {
    std::string_view name;
    std::uint32_t begin;  ///< offset of its line
  };
  /// A line with a key.
  struct Key {
    std::uint32_t hash;   ///< of its name
    std::uint32_t begin;  ///< offset of the line
    std::uint32_t end;    ///< offset of its line end
  };

  std::vector<Key> ReadLines();
  void FillBuckets(std::span<const Key> zKeys);
  void SortCrowdedBuckets();
  std::string_view LineOf(const Key& zKey) const;
  std::strong_ordering Compare(const Key& zKey, std::string_view zName, std::uint32_t zBegin) const;
  const Key* FindKey(std::size_t zHeader, std::string_view zName) const;

  LoadedFile file_;
  std::vector<Header> headers_;                      ///< in the order of the file
  std::map<std::string, std::size_t> firstHeaders_;  ///< of each name, by the name in lower case
  std::vector<Key> keys_;                            ///< bucket by bucket
  std::vector<std::uint32_t> buckets_;  ///< the first key of each bucket, then the number of keys
};

}  // namespace loquitor
