#include "core/dictionary_store.h"

#include <utility>

#include "text/words.h"

namespace loquitor {

DictionarySnapshot::DictionarySnapshot(std::shared_ptr<const ProfileSnapshot> zFile)
    : file_(std::move(zFile)) {}

std::string_view DictionarySnapshot::Entry(std::string_view zWord) const {
  const auto entry = file_->Find(DictionaryStore::Section, zWord);
  return TrimSpacesAndNuls(entry.value_or("").substr(0, DictionaryStore::MaxEntry));
}

std::string DictionarySnapshot::SayDataOf(std::string_view zWords) const {
  std::string sayData;
  ForEachWord(zWords, [&](std::string_view zWord) { sayData.append(Entry(zWord)).append(" "); });
  return sayData;
}

DictionaryStore::DictionaryStore(const std::filesystem::path& zFolder)
    : file_(zFolder / "Loquitor.Dic") {}

std::string DictionaryStore::GetDictionaryValue(std::string_view zSection, std::string_view zWord,
                                                std::string_view zDefault) const {
  return std::string(TrimSpacesAndNuls(file_.Read(zSection, zWord, zDefault, MaxEntry + 1)));
}

bool DictionaryStore::SaveDictionaryValue(std::string_view zSection, std::string_view zWord,
                                          std::string_view zValue) const {
  return file_.Write(zSection, zWord, zValue);
}

}  // namespace loquitor
