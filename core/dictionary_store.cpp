#include "core/dictionary_store.h"

#include <utility>

#include "link/profile_file.h"
#include "link/profile_index.h"
#include "link/trimmed_profile.h"

namespace loquitor {
namespace {

constexpr std::size_t BufferLength = 2560;

}  // namespace

DictionaryStore::DictionaryStore(std::filesystem::path zFolder)
    : file_(std::move(zFolder) / "Loquitor.Dic") {}

std::string DictionaryStore::GetDictionaryValue(std::string_view zSection, std::string_view zWord,
                                                std::string_view zDefault) const {
  return ReadTrimmedValue(zSection, zWord, zDefault, BufferLength, file_);
}

bool DictionaryStore::SaveDictionaryValue(std::string_view zSection, std::string_view zWord,
                                          std::string_view zValue) const {
  return WriteProfileValue(zSection, zWord, zValue, file_);
}

std::string_view DictionaryStore::EntryIn(const ProfileIndex& zIndex, std::string_view zWord,
                                          std::string_view zDefault) {
  const auto entry = zIndex.Find(Section, zWord);
  return TrimSpacesAndNuls(entry.value_or(zDefault).substr(0, BufferLength - 1));
}

}  // namespace loquitor
