#include "say/english_input.h"

#include <array>
#include <fstream>
#include <iostream>
#include <vector>

#include "english/new_words.h"
#include "english/unread_text.h"
#include "text/path_text.h"

namespace loquitor {

namespace {

void TellUnread(std::string_view zWhat, const std::vector<std::string>& zUnread) {
  if (!zUnread.empty()) {
    std::cerr << "loquitor-say: " << zWhat << DescribeUnread(zUnread) << std::endl;
  }
}

/// The bytes of a file, which may be a pipe; nothing when it cannot be read.
std::optional<std::string> ReadWhole(const std::string& zFile) {
  std::ifstream file(PathFrom(zFile), std::ios::binary);
  std::string bytes;
  for (std::array<char, 4096> piece{}; file.good();) {
    file.read(piece.data(), piece.size());
    bytes.append(piece.data(), static_cast<std::size_t>(file.gcount()));
  }
  return file.eof() ? std::make_optional(std::move(bytes)) : std::nullopt;
}

}  // namespace

EnglishInput::EnglishInput(const CodeTable& zCodeTable, const DictionaryStore& zDictionary,
                           const SayDataTranslator& zTranslator)
    : dictionary_(zDictionary), translator_(zTranslator), source_(CreatePhoneSource()) {
  if (source_ != nullptr) {
    reader_.emplace(*source_, zCodeTable);
  }
}

std::string EnglishInput::ToSayData(std::string_view zText) const {
  const EnglishReading reading = reader_->ReadText(zText, WordsOf(dictionary_, translator_));
  TellUnread("cannot read ", reading.unread);
  return reading.sayData;
}

std::optional<std::size_t> EnglishInput::AddWords(const std::string& zFile) {
  const std::optional<std::string> list = ReadWhole(zFile);
  if (!list) {
    complaint_ = "cannot read " + zFile;
    return std::nullopt;
  }
  if (list->find('\0') != std::string::npos) {
    complaint_ = zFile + " is not a text in UTF-8";
    return std::nullopt;
  }
  const NewWords words = SoundOutNewWords(*list, *reader_, WordsOf(dictionary_, translator_));
  TellUnread("no words of Say Data: ", words.unread);
  if (!words.entries.empty() && !dictionary_.SaveEntries(words.entries)) {
    complaint_ = "cannot write " + TextOf(dictionary_.File());
    return std::nullopt;
  }
  return words.entries.size();
}

}  // namespace loquitor
