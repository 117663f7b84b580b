#include "link/profile_index.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "link/letter_case.h"
#include "link/profile_lines.h"

namespace loquitor {
namespace {

constexpr std::size_t FewestSlots = 16;
constexpr std::size_t SampleSize = 1 << 14;

/// FNV-1a over lower-case letters, its result mixed so that every bit depends on every byte.
/// Source: the algorithm's published constants.
class NameHash {
 public:
  explicit NameHash(std::uint64_t zSeed) : hash_(0xCBF29CE484222325U ^ zSeed) {}
  void Add(char zByte) {
    const char lower = LowerCaseTable[static_cast<unsigned char>(zByte)];
    hash_ = (hash_ ^ static_cast<unsigned char>(lower)) * 0x100000001B3U;
  }
  std::uint32_t Tag() const {
    return static_cast<std::uint32_t>((hash_ ^ (hash_ >> 29)) * 0x9E3779B97F4A7C15U >> 32);
  }

 private:
  std::uint64_t hash_;
};

std::uint32_t TagOf(std::string_view zName, std::uint64_t zSeed) {
  NameHash hash(zSeed);
  for (const char c : zName) {
    hash.Add(c);
  }
  return hash.Tag();
}

/// About as many as the lines of `zText`, from a look at its start.
std::size_t EstimatedLines(std::string_view zText) {
  const std::string_view sample = zText.substr(0, SampleSize);
  const auto ends =
      static_cast<std::size_t>(std::max(std::count(sample.begin(), sample.end(), '\n'),
                                        std::count(sample.begin(), sample.end(), '\r')));
  return sample.empty() ? 0 : zText.size() / sample.size() * ends;
}

}  // namespace

std::size_t ProfileIndex::HashName::operator()(std::string_view zName) const {
  return TagOf(zName, 0);
}

bool ProfileIndex::SameName::operator()(std::string_view zLeft, std::string_view zRight) const {
  return EqualNames(zLeft, zRight);
}

ProfileIndex::ProfileIndex(LoadedFile zFile) : file_(std::move(zFile)) {
  Resize(std::bit_ceil(std::max(FewestSlots, EstimatedLines(Text()) * 3 / 2)));
  ReadLines();
}

void ProfileIndex::ReadLines() {
  ProfileLineReader reader(Text());
  ProfileLine line;
  bool isReadable = false;  // false in front of the first header and in a section named before
  while (reader.Next(line)) {
    if (const auto name = HeaderName(line.text)) {
      if (isReadable) {
        sections_.back().end = line.begin;
      }
      isReadable = OpenSection(*name, line.next);
    } else if (isReadable) {
      AddEntry(line.text, line.begin);
    }
  }
}

bool ProfileIndex::OpenSection(std::string_view zName, std::size_t zBegin) {
  const bool isNew = sectionsByName_.try_emplace(zName, sections_.size()).second;
  if (isNew) {
    sections_.push_back({zName, zBegin, file_.size});
  }
  return isNew;
}

void ProfileIndex::AddEntry(std::string_view zLine, std::size_t zBegin) {
  const char* const end = zLine.data() + zLine.size();
  const char* start = zLine.data();
  while (start != end && IsBlank(*start)) {
    ++start;
  }
  if (start == end || *start == ';') {
    return;
  }
  const char* keyEnd = start;
  const char* at = start;
  NameHash hash(sections_.size());
  NameHash hashOfKey = hash;  // without the blanks behind the key
  for (; at != end && *at != '='; ++at) {
    hash.Add(*at);
    if (!IsBlank(*at)) {
      hashOfKey = hash;
      keyEnd = at + 1;
    }
  }
  if (at == end) {
    return;
  }
  const std::string_view key(start, static_cast<std::size_t>(keyEnd - start));
  const std::uint32_t tag = hashOfKey.Tag();
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = tag & mask;
  for (; slots_[i].place != 0; i = (i + 1) & mask) {
    if (HoldsKey(slots_[i], tag, sections_.back(), key)) {
      return;
    }
  }
  slots_[i] = {tag,
               static_cast<std::uint32_t>(zBegin + static_cast<std::size_t>(start - zLine.data()))};
  if (++count_ * 2 > slots_.size()) {
    Resize(slots_.size() * 2);
  }
}

void ProfileIndex::Resize(std::size_t zSlots) {
  std::vector<Slot> slots(zSlots);
  for (const Slot& slot : slots_) {
    if (slot.place != 0) {
      std::size_t i = slot.tag & (zSlots - 1);
      while (slots[i].place != 0) {
        i = (i + 1) & (zSlots - 1);
      }
      slots[i] = slot;
    }
  }
  slots_ = std::move(slots);
}

std::string_view ProfileIndex::LineFrom(std::size_t zPlace) const {
  const std::string_view rest = Text().substr(zPlace);
  return rest.substr(0, rest.find_first_of("\r\n"));
}

bool ProfileIndex::HoldsKey(const Slot& zSlot, std::uint32_t zTag, const Section& zSection,
                            std::string_view zKey) const {
  if (zSlot.tag != zTag || zSlot.place < zSection.begin || zSlot.place >= zSection.end) {
    return false;
  }
  const std::string_view line = LineFrom(zSlot.place);
  return EqualNames(TrimBlanks(line.substr(0, line.find('='))), zKey);
}

std::optional<std::string_view> ProfileIndex::Find(std::string_view zSection,
                                                   std::string_view zKey) const {
  const auto found = sectionsByName_.find(TrimBlanks(zSection));
  if (found == sectionsByName_.end()) {
    return std::nullopt;
  }
  const Section& section = sections_[found->second];
  const std::string_view key = TrimBlanks(zKey);
  const std::uint32_t tag = TagOf(key, found->second + 1);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = tag & mask; slots_[i].place != 0; i = (i + 1) & mask) {
    if (HoldsKey(slots_[i], tag, section, key)) {
      const std::string_view line = LineFrom(slots_[i].place);
      return WithoutQuotes(TrimBlanks(line.substr(line.find('=') + 1)));
    }
  }
  return std::nullopt;
}

std::vector<std::string_view> ProfileIndex::SectionNames() const {
  std::vector<std::string_view> names;
  names.reserve(sections_.size());
  for (const Section& section : sections_) {
    names.push_back(section.name);
  }
  return names;
}

}  // namespace loquitor
