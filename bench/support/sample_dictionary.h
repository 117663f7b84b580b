#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "tests/support/temp_folder.h"

namespace loquitor::bench {

/// A dictionary file in a folder of its own. Its words are made up, not in alphabetical order, and
/// have Say Data of the usual length.
class SampleDictionary {
 public:
  enum class Entries { AllFull, AllEmptyButFirst };

  explicit SampleDictionary(std::int64_t zSize, Entries zEntries = Entries::AllFull)
      : size_(static_cast<int>(zSize)) {
    std::string text = "[words]\r\n";
    for (int i = 0; i < size_; ++i) {
      text += Word(i) + "=";
      if (zEntries == Entries::AllFull || i == 0) {
        text += Sounds(i);
      }
      text += "\r\n";
    }
    testing::WriteBytes(File(), text);
  }

  int Size() const { return size_; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }
  const std::filesystem::path& File() const { return file_; }

  /// Word number `zIndex`: 1 to 12 letters, different for each number below a million.
  static std::string Word(int zIndex) {
    auto mixed =
        static_cast<std::uint32_t>(zIndex) * 2654435761U;  // an odd factor keeps them different
    std::string word;
    do {
      word += static_cast<char>('a' + mixed % 26);
      mixed /= 26;
    } while (mixed != 0);
    return word.append(static_cast<std::size_t>(zIndex % 6), 'e');
  }

  /// Waits until the stamp of the file is reliable (see IsReliable).
  static void LetItSettle() { std::this_thread::sleep_for(std::chrono::milliseconds(50)); }

 private:
  static std::string Sounds(int zIndex) {
    std::string sounds;
    for (int i = 0; i < 4 + zIndex % 5; ++i) {
      sounds += i == 0 ? "\\HE" : " \\EH";
    }
    return sounds;
  }

  testing::TempFolder folder_;
  std::filesystem::path file_ = folder_ / "Loquitor.Dic";
  int size_;
};

}  // namespace loquitor::bench
