#include "files/profile_snapshot.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <utility>

#include "files/profile_lines.h"

namespace loquitor {
namespace {

/// A bucket of more keys than this is sorted by name. There are as many buckets as keys, so that
/// happens only to names that were made to collide, and to one name in many sections.
constexpr std::size_t MostUnsorted = 32;

/// The hash of a name in any letter case: eight bytes at a time, mixed by a multiplication with
/// 2 to the 64th over the golden ratio.
std::uint32_t HashOf(std::string_view zName) {
  std::uint64_t hash = zName.size();
  while (!zName.empty()) {
    const std::size_t count = std::min<std::size_t>(zName.size(), 8);
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const char lower = LowerCaseTable[static_cast<unsigned char>(zName[i])];
      bytes = bytes << 8 | static_cast<unsigned char>(lower);
    }
    hash = (hash ^ bytes) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 32;
    zName.remove_prefix(count);
  }
  return static_cast<std::uint32_t>(hash);
}

/// The key of `zLine`, which is known to have one.
std::string_view NameIn(std::string_view zLine) {
  return TrimBlanks(zLine.substr(0, zLine.find('=')));
}

}  // namespace

ProfileSnapshot::ProfileSnapshot(LoadedFile zFile) : file_(std::move(zFile)) {
  FillBuckets(ReadLines());
  SortCrowdedBuckets();
}

/// Finds the headers. The result is all keys in the order of the file.
std::vector<ProfileSnapshot::Key> ProfileSnapshot::ReadLines() {
  constexpr std::size_t usualLine = 32;
  std::vector<Key> keys;
  keys.reserve(Text().size() / usualLine);
  ProfileLineReader reader(Text());
  ProfileLine line;
  while (reader.Next(line)) {
    const auto begin = static_cast<std::uint32_t>(line.begin);
    if (const auto header = HeaderName(line.text)) {
      firstHeaders_.try_emplace(ToLower(*header), headers_.size());
      headers_.push_back({*header, begin});
    } else if (const auto name = KeyOf(line.text)) {
      keys.push_back({HashOf(*name), begin, begin + static_cast<std::uint32_t>(line.text.size())});
    }
  }
  return keys;
}

/// A counting sort by hash, which keeps the order of the file in each bucket.
void ProfileSnapshot::FillBuckets(std::span<const Key> zKeys) {
  const std::size_t count = std::bit_ceil(zKeys.size() + 1);
  buckets_.resize(count + 1);
  for (const Key& key : zKeys) {
    ++buckets_[key.hash & (count - 1)];
  }
  std::partial_sum(buckets_.begin(), buckets_.end(), buckets_.begin());
  keys_.resize(zKeys.size());
  for (auto key = zKeys.rbegin(); key != zKeys.rend(); ++key) {
    keys_[--buckets_[key->hash & (count - 1)]] = *key;
  }
}

void ProfileSnapshot::SortCrowdedBuckets() {
  const auto comesBefore = [this](const Key& zLeft, const Key& zRight) {
    return Compare(zLeft, NameIn(LineOf(zRight)), zRight.begin) < 0;
  };
  for (std::size_t bucket = 0; bucket + 1 < buckets_.size(); ++bucket) {
    if (buckets_[bucket + 1] - buckets_[bucket] > MostUnsorted) {
      std::sort(&keys_[buckets_[bucket]], keys_.data() + buckets_[bucket + 1], comesBefore);
    }
  }
}

std::string_view ProfileSnapshot::LineOf(const Key& zKey) const {
  return Text().substr(zKey.begin, zKey.end - zKey.begin);
}

/// The order in a crowded bucket: by name, keys of one name by their place in the file.
std::strong_ordering ProfileSnapshot::Compare(const Key& zKey, std::string_view zName,
                                              std::uint32_t zBegin) const {
  const auto order = CompareNames(NameIn(LineOf(zKey)), zName);
  return order != 0 ? order : zKey.begin <=> zBegin;
}

/// The first key of a name after a header and before the next one, or null.
const ProfileSnapshot::Key* ProfileSnapshot::FindKey(std::size_t zHeader,
                                                     std::string_view zName) const {
  const std::uint32_t hash = HashOf(zName);
  const std::size_t bucket = hash & (buckets_.size() - 2);
  const std::uint32_t begin = headers_[zHeader].begin;
  const std::size_t end =
      zHeader + 1 < headers_.size() ? headers_[zHeader + 1].begin : Text().size();
  const std::span keys(keys_.begin() + buckets_[bucket], keys_.begin() + buckets_[bucket + 1]);
  const auto isSought = [&](const Key& zKey) {
    return zKey.hash == hash && begin < zKey.begin && zKey.begin < end &&
           CompareNames(NameIn(LineOf(zKey)), zName) == 0;
  };
  const auto found = keys.size() > MostUnsorted
                         ? std::ranges::partition_point(
                               keys, [&](const Key& k) { return Compare(k, zName, begin) < 0; })
                         : std::ranges::find_if(keys, isSought);
  return found != keys.end() && isSought(*found) ? &*found : nullptr;
}

std::optional<std::string_view> ProfileSnapshot::Find(std::string_view zSection,
                                                      std::string_view zKey) const {
  const auto header = firstHeaders_.find(ToLower(TrimBlanks(zSection)));
  if (header == firstHeaders_.end()) {
    return std::nullopt;
  }
  const Key* const key = FindKey(header->second, TrimBlanks(zKey));
  return key == nullptr ? std::nullopt : std::optional(WithoutQuotes(EntryOf(LineOf(*key))->value));
}

std::vector<std::string_view> ProfileSnapshot::SectionNames() const {
  std::vector<std::string_view> names;
  for (std::size_t header = 0; header < headers_.size(); ++header) {
    if (firstHeaders_.at(ToLower(headers_[header].name)) == header) {
      names.push_back(headers_[header].name);
    }
  }
  return names;
}

}  // namespace loquitor
