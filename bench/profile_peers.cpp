// Profile files side by side with four well-known libraries, on the same dictionaries of 1,000 and
// 130,000 words: the first lookup (read, parse, find), a later lookup, a write of one word (read,
// change, save), and the memory that a loaded file takes. Uses a memory file system if there is
// one, so that libraries that flush to disk are not slower than those that do not.

#include <INIReader.h>
#define SI_NO_CONVERSION  // 8-bit text, as everywhere here
#include <SimpleIni.h>
#include <benchmark/benchmark.h>
#include <glib.h>
#include <malloc.h>

#include <QSettings>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "bench/support/sample_dictionary.h"
#include "files/profile_file.h"

namespace loquitor::bench {
namespace {

/// What the measurements need of a library: a loaded file that finds words, and a write.

struct Ours {
  explicit Ours(const std::filesystem::path& zFile) : file(zFile) {}
  std::size_t Find(const std::string& zWord) {
    return file.Snapshot()->Find("words", zWord).value_or("").size();
  }
  static bool Write(const std::filesystem::path& zFile, const std::string& zWord,
                    const std::string& zValue) {
    return WriteProfileValue("words", zWord, zValue, zFile);
  }
  ProfileFile file;
};

/// Our snapshot, which like the other libraries never checks whether the file has changed.
struct OursUnproved : Ours {
  explicit OursUnproved(const std::filesystem::path& zFile)
      : Ours(zFile), snapshot(file.Snapshot()) {}
  std::size_t Find(const std::string& zWord) {
    return snapshot->Find("words", zWord).value_or("").size();
  }
  std::shared_ptr<const ProfileSnapshot> snapshot;
};

struct GLib {
  explicit GLib(const std::filesystem::path& zFile) {
    g_key_file_load_from_file(file.get(), zFile.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
  }
  std::size_t Find(const std::string& zWord) {
    const std::unique_ptr<char, decltype(&g_free)> value(
        g_key_file_get_value(file.get(), "words", zWord.c_str(), nullptr), g_free);
    return value ? std::char_traits<char>::length(value.get()) : 0;
  }
  static bool Write(const std::filesystem::path& zFile, const std::string& zWord,
                    const std::string& zValue) {
    const GLib loaded(zFile);
    g_key_file_set_value(loaded.file.get(), "words", zWord.c_str(), zValue.c_str());
    return g_key_file_save_to_file(loaded.file.get(), zFile.c_str(), nullptr) != FALSE;
  }
  std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> file{g_key_file_new(), g_key_file_unref};
};

struct SimpleIni {
  explicit SimpleIni(const std::filesystem::path& zFile) {
    static_cast<void>(ini.LoadFile(zFile.c_str()));  // Find shows whether it worked
  }
  std::size_t Find(const std::string& zWord) {
    const char* value = ini.GetValue("words", zWord.c_str(), "");
    return std::char_traits<char>::length(value);
  }
  static bool Write(const std::filesystem::path& zFile, const std::string& zWord,
                    const std::string& zValue) {
    SimpleIni loaded(zFile);
    return loaded.ini.SetValue("words", zWord.c_str(), zValue.c_str()) >= 0 &&
           loaded.ini.SaveFile(zFile.c_str()) >= 0;
  }
  CSimpleIniA ini;
};

struct Inih {
  explicit Inih(const std::filesystem::path& zFile) : ini(zFile.string()) {}
  std::size_t Find(const std::string& zWord) { return ini.Get("words", zWord, "").size(); }
  INIReader ini;
};

struct Qt {
  explicit Qt(const std::filesystem::path& zFile)
      : ini(QString::fromStdString(zFile.string()), QSettings::IniFormat) {}
  std::size_t Find(const std::string& zWord) {
    return static_cast<std::size_t>(
        ini.value(QLatin1String("words/") + QString::fromLatin1(zWord.c_str())).toString().size());
  }
  static bool Write(const std::filesystem::path& zFile, const std::string& zWord,
                    const std::string& zValue) {
    Qt loaded(zFile);
    loaded.ini.setValue(QLatin1String("words/") + QString::fromLatin1(zWord.c_str()),
                        QString::fromLatin1(zValue.c_str()));
    loaded.ini.sync();
    return loaded.ini.status() == QSettings::NoError;
  }
  QSettings ini;
};

double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

template <typename Library>
void FirstLookup(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  const std::string word = sample.Word(sample.Size() / 2);
  for (auto _ : zState) {
    Library library(sample.File());
    if (library.Find(word) == 0) {
      zState.SkipWithError("not found");
    }
  }
  const double before = HeapInUse();
  Library library(sample.File());
  static_cast<void>(library.Find(word));
  zState.counters["heap_bytes"] = HeapInUse() - before;
}

template <typename Library>
void LaterLookup(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  sample.LetItSettle();
  std::vector<std::string> words;
  for (int i = 0; i < 1000; ++i) {
    words.push_back(sample.Word(i * 7919 % sample.Size()));
  }
  Library library(sample.File());
  static_cast<void>(library.Find(words[0]));  // some read the file only now
  std::size_t i = 0;
  for (auto _ : zState) {
    benchmark::DoNotOptimize(library.Find(words[i]));
    i = (i + 1) % words.size();
  }
}

template <typename Library>
void WriteOneWord(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  const std::string word = sample.Word(sample.Size() / 2);
  int i = 0;
  for (auto _ : zState) {
    if (!Library::Write(sample.File(), word, std::to_string(++i))) {
      zState.SkipWithError("not written");
    }
  }
}

#define LOQUITOR_SIZES Arg(1'000)->Arg(130'000)
BENCHMARK(FirstLookup<Ours>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstLookup<GLib>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstLookup<SimpleIni>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstLookup<Inih>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstLookup<Qt>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(LaterLookup<Ours>)->LOQUITOR_SIZES;
BENCHMARK(LaterLookup<OursUnproved>)->LOQUITOR_SIZES;
BENCHMARK(LaterLookup<GLib>)->LOQUITOR_SIZES;
BENCHMARK(LaterLookup<SimpleIni>)->LOQUITOR_SIZES;
BENCHMARK(LaterLookup<Inih>)->LOQUITOR_SIZES;
BENCHMARK(LaterLookup<Qt>)->LOQUITOR_SIZES;
BENCHMARK(WriteOneWord<Ours>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteOneWord<GLib>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteOneWord<SimpleIni>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteOneWord<Qt>)->LOQUITOR_SIZES->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace loquitor::bench

int main(int zCount, char** zArguments) {
  if (std::filesystem::is_directory("/dev/shm")) {
    static_cast<void>(setenv("TMPDIR", "/dev/shm", 1));
  }
  benchmark::Initialize(&zCount, zArguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
