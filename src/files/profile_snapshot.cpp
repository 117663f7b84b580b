#include "files/profile_snapshot.h"

#include <algorithm>
#include <bit>

#include "files/profile_lines.h"

namespace loquitor {
namespace {

/// How many slots are searched for a name. In a table that is half full, two or three are enough
/// unless names were made to collide.
constexpr std::size_t MostProbes = 32;

/// The hash of a name in any letter case: eight bytes at a time, mixed by a multiplication with
/// 2 to the 64th over the golden ratio.
std::uint32_t HashOf(std::uint64_t zSeed, std::string_view zName) {
  std::uint64_t hash = zSeed;
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

}  // namespace

ProfileSnapshot::ProfileSnapshot(LoadedFile zFile) : file_(std::move(zFile)), entries_(1) {
  ReadEntries();
  slots_.resize(std::bit_ceil(2 * entries_.size()));
  for (Number entry = 1; entry < entries_.size(); ++entry) {
    Index(entry);
  }
}

ProfileSnapshot::Entry ProfileSnapshot::EntryFor(Number zSection, std::string_view zName,
                                                 std::string_view zValue) {
  return {zName, zValue, zSection, HashOf(zSection, zName)};
}

/// Keys belong to the header above them. Only the first header of a name is ever found, and with it
/// only its own keys.
void ProfileSnapshot::ReadEntries() {
  ProfileLineReader reader(Text());
  ProfileLine line;
  Number section = 0;
  while (reader.Next(line)) {
    if (const auto name = HeaderName(line.text)) {
      section = static_cast<Number>(entries_.size());
      entries_.push_back(EntryFor(0, *name));
    } else if (const auto entry = section != 0 ? EntryOf(line.text) : std::nullopt) {
      entries_.push_back(EntryFor(section, entry->key, entry->value));
    }
  }
}

/// The slot of the entry that `zSought` describes, or the free one where it belongs. Nothing when
/// too many others are in the way: then it belongs into `crowded_`.
std::optional<std::size_t> ProfileSnapshot::SlotOf(const Entry& zSought) const {
  for (std::size_t probe = 0; probe < MostProbes; ++probe) {
    const std::size_t slot = (zSought.hash + probe) & (slots_.size() - 1);
    const Entry& entry = entries_[slots_[slot]];
    const bool isSought = entry.hash == zSought.hash && entry.section == zSought.section &&
                          EqualNames(entry.name, zSought.name);
    if (slots_[slot] == 0 || isSought) {
      return slot;
    }
  }
  return std::nullopt;
}

void ProfileSnapshot::Index(Number zEntry) {
  const Entry& entry = entries_[zEntry];
  const auto slot = SlotOf(entry);
  if (!slot) {
    crowded_.try_emplace({entry.section, ToLower(entry.name)}, zEntry);
  } else if (slots_[*slot] == 0) {  // else it is the second one of its name, which does not count
    slots_[*slot] = zEntry;
  }
}

ProfileSnapshot::Number ProfileSnapshot::Find(const Entry& zSought) const {
  if (const auto slot = SlotOf(zSought)) {
    return slots_[*slot];
  }
  const auto found = crowded_.find({zSought.section, ToLower(zSought.name)});
  return found == crowded_.end() ? 0 : found->second;
}

std::optional<std::string_view> ProfileSnapshot::Find(std::string_view zSection,
                                                      std::string_view zKey) const {
  const Number section = Find(EntryFor(0, TrimBlanks(zSection)));
  const Number key = section == 0 ? 0 : Find(EntryFor(section, TrimBlanks(zKey)));
  return key == 0 ? std::nullopt : std::make_optional(WithoutQuotes(entries_[key].value));
}

std::vector<std::string_view> ProfileSnapshot::SectionNames() const {
  std::vector<std::string_view> names;
  for (Number entry = 1; entry < entries_.size(); ++entry) {
    if (entries_[entry].section == 0 && Find(entries_[entry]) == entry) {
      names.push_back(entries_[entry].name);
    }
  }
  return names;
}

}  // namespace loquitor
