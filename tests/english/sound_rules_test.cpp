// From phones to sounds, a row for each context that decides.
#include "english/sound_rules.h"

#include <gtest/gtest.h>

#include "core/code_table.h"
#include "english/vowel_spelling.h"

namespace loquitor {
namespace {

std::string SoundNames(const std::string& zPhones, const std::string& zSpelling) {
  CodeTable table;
  table.BuildCodeTable();
  std::string names;
  for (const SpeechSound sound : SoundsOfWord(PhonesFromText(zPhones), zSpelling)) {
    names += (names.empty() ? "" : " ") +
             table.GetCodeMnemonic(static_cast<std::uint8_t>(sound)).substr(1);
  }
  return names;
}

struct SoundCase {
  const char* spelling;
  const char* phones;
  const char* sounds;
};

void PrintTo(const SoundCase& zCase, std::ostream* zOut) {
  *zOut << zCase.spelling;
}

class SoundRules : public ::testing::TestWithParam<SoundCase> {};

TEST_P(SoundRules, GiveTheSoundsOfAWord) {
  EXPECT_EQ(SoundNames(GetParam().phones, GetParam().spelling), GetParam().sounds);
}

constexpr SoundCase Vowels[] = {
    {"you", "y uw1", "IYUW"},
    {"pure", "p y uh1 r", "PE IYUW RR"},
    {"yes", "y eh1 s", "IYEH SE"},
    {"million", "m ih1 l y ax n", "MM IH LE IYEH NE"},
    {"yellow", "y eh1 l ow", "IYEH EH LO OWWW"},
    {"year", "y ih1 r", "IYEH IYRR"},
    {"hear", "hh iy1 r", "HE IYRR"},
    {"air", "eh1 r", "EYRR"},
    {"carry", "k ae1 r iy", "KE EYRR IY"},
    {"four", "f ao1 r", "FF OWRR"},
    {"car", "k aa1 r", "KE AWRR"},
    {"sorry", "s aa1 r iy", "SO AW RR IY"},
    {"tomorrow", "t ax m aa1 r ow", "TU UW MM OH RR OWWW"},
    {"bird", "b er1 d", "BE AXRR ED"},
    {"under", "ah1 n d er", "AX NO DE RR"},
    {"urbane", "er b ey1 n", "AXRR BE EYIY NE"},
    {"separate", "s eh1 p ax r ey t", "SE EH PO AX RR EYIY TT"},
    {"angle", "ae1 ng g ax l", "AY NGE GE EHLE"},
    {"bell", "b eh1 l", "BE EHLE"},
    {"belt", "b eh1 l t", "BE EH LE TT"},
    {"balloon", "b ax l uw1 n", "BO AX LO UX NO"},
    {"button", "b ah1 t ax n", "BO AX TT NE"},
    {"system", "s ih1 s t ax m", "SE IH SE TU EH MM"},
    {"invalid", "ih1 n v ae l ax d", "IH NE VV AY LE IH ED"},
    {"message", "m eh1 s ax jh", "MM EH SE IH JH"},
    {"orange", "ao1 r ax n jh", "OWRR IH NE JH"},
    {"the", "dh ax", "DH AX"},
    {"about", "ax b aw1 t", "AX BO AYWW TT"},
    {"monday", "m ah1 n d iy", "MM AX NO DE EYIY"},
    {"birthday", "b er1 th d ey", "BE AXRR TH DE EYIY"},
    {"behind", "b ih hh ay1 n d", "BE IY HE OHIH NE ED"},
    {"eleven", "ih l eh1 v ax n", "IH LE EH VV EH NE"},
    {"hot", "hh aa1 t", "HO OH TT"},
    {"father", "f aa1 dh er", "FF AW DH RR"},
    {"spa", "s p aa1", "SE PO AW"},
    {"watch", "w aa1 ch", "WW OH CH"},
    {"all", "ao1 l", "AW LO"},
    {"off", "ao1 f", "OH FF"},
    {"august", "ao1 g ax s t", "AW GO AX SE TT"},
    {"lost", "l ao1 s t", "LO OH SE TT"},
    {"slow", "s l ow1", "SO LO OWWW"},
    {"phone", "f ow1 n", "FF OW NO"},
    {"blue", "b l uw1", "BE LO UX"},
    {"new", "n uw1", "NE IHWW"},
    {"noon", "n uw1 n", "NO UW NO"},
    {"light", "l ay1 t", "LO OHIY TT"},
    {"line", "l ay1 n", "LO OHIH NE"},
    {"brown", "b r aw1 n", "BO RR AXUW NO"},
    {"house", "hh aw1 s", "HO AYWW SE"},
    {"quiet", "k w ay1 ax t", "KO WW OHIH EH TT"},
    {"boy", "b oy1", "BO OWIY"},
};
INSTANTIATE_TEST_SUITE_P(Vowels, SoundRules, ::testing::ValuesIn(Vowels));

constexpr SoundCase Consonants[] = {
    {"when", "w eh1 n", "WH EH NE"},
    {"cobweb", "k aa1 b w eh b", "KO OH EB WW EH EB"},
    {"value", "v ae1 l y uw", "VV AY LE IYUW"},
    {"volume", "v aa1 l y uw m", "VV OH LO IYUW MM"},
    {"black", "b l ae1 k", "BE LO AY EK"},
    {"left", "l eh1 f t", "LE EH FF TT"},
    {"world", "w er1 l d", "WW AXRR LO ED"},
    {"help", "hh eh1 l p", "HE EH LE PE"},
    {"done", "d ah1 n", "DO AX NO"},
    {"found", "f aw1 n d", "FF AXUW NE ED"},
    {"want", "w aa1 n t", "WW OH NO TT"},
    {"caution", "k aa1 sh ax n", "KO AW SH AX NE"},
    {"long", "l ao1 ng", "LO OH NGO"},
    {"bring", "b r ih1 ng", "BE RR IH NGE"},
    {"brush", "b r ah1 sh", "BO RR AX SH"},
    {"job", "jh aa1 b", "JH OH OB"},
    {"problem", "p r aa1 b l ax m", "PE RR OH EB LE EH MM"},
    {"good", "g uh1 d", "GO UH ED"},
    {"food", "f uw1 d", "FF UW OD"},
    {"drive", "d r ay1 v", "DE RR OHIH VV"},
    {"dwarf", "d w ao1 r f", "DO WW OWRR FF"},
    {"glass", "g l ae1 s", "GE LO AY SE"},
    {"glow", "g l ow1", "GO LO OWWW"},
    {"dog", "d ao1 g", "DO OH OG"},
    {"big", "b ih1 g", "BE IH EG"},
    {"maker", "m ey1 k er", "MM EYIY EK RR"},
    {"october", "aa k t ow1 b er", "OH OK TU OW BE RR"},
    {"cow", "k aw1", "KE AYWW"},
    {"quick", "k w ih1 k", "KO WW IH EK"},
    {"clock", "k l aa1 k", "KE LO OH OK"},
    {"cross", "k r ao1 s", "KO RR OH SE"},
    {"box", "b aa1 k s", "BO OH KO SE"},
    {"thank", "th ae1 ng k", "TH AY NGE EK"},
    {"port", "p ao1 r t", "PO OWRR TT"},
    {"topic", "t aa1 p ih k", "TU OH PO IH EK"},
    {"robots", "r ow1 b aa t s", "RR OW BO OH TS"},
    {"outside", "aw t s ay1 d", "AYWW TT SE OHIH ED"},
    {"metal", "m eh1 t ax l", "MM EH TT EHLE"},
    {"twelve", "t w eh1 l v", "TU WW EH LE VV"},
    {"test", "t eh1 s t", "TU EH SE TT"},
    {"school", "s k uw1 l", "SO KO UW LO"},
    {"sky", "s k ay1", "SE KE OHIH"},
    {"switch", "s w ih1 ch", "SO WW IH CH"},
};
INSTANTIATE_TEST_SUITE_P(Consonants, SoundRules, ::testing::ValuesIn(Consonants));

TEST(SoundRules, KnowEverySequenceOfPhones) {
  CodeTable table;
  table.BuildCodeTable();
  for (int code = 0; code < 40 * 40 * 40; ++code) {
    WordPhones phones;
    for (const int phone : {code % 40, code / 40 % 40, code / 1600}) {
      phones.push_back({static_cast<Phone>(phone), code % 2 == 0});
    }
    for (const SpeechSound sound : SoundsOfWord(phones, "")) {
      const std::string name = table.GetCodeMnemonic(static_cast<std::uint8_t>(sound));
      ASSERT_FALSE(name.empty()) << code;
    }
  }
}

TEST(VowelSpelling, PairsLettersWithVowels) {
  struct Case {
    const char* word;
    std::size_t vowels;
    std::vector<std::string_view> letters;
  };
  const Case cases[] = {
      {"system", 2, {"y", "e"}},
      {"yes", 1, {"e"}},
      {"quick", 1, {"i"}},
      {"distance", 2, {"i", "a"}},
      {"closed", 1, {"o"}},
      {"wanted", 2, {"a", "e"}},
      {"quiet", 2, {"i", "e"}},
      {"video", 3, {"i", "e", "o"}},
      {"queue", 1, {"eue"}},
      {"business", 2, {}},
      {"", 0, {}},
      {"rhythm", 2, {}},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(VowelSpelling(row.word, row.vowels), row.letters) << row.word;
  }
}

}  // namespace
}  // namespace loquitor
