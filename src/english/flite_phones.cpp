// The phones of words by flite's text analysis: parts of speech, a lexicon, letter-to-sound rules.
// No voice is loaded and nothing is synthesized.
//
// flite ends the program on errors that it takes for fatal. The words that PhoneSource allows cause
// none: they are short, and have only letters and apostrophes.

#include "english/phone_source.h"

extern "C" {
#include <flite/flite.h>
// These two are in no header of flite.
void usenglish_init(cst_voice* zVoice);
cst_lexicon* cmu_lex_init(void);
}

namespace loquitor {

namespace {

struct DeleteUtterance {
  void operator()(cst_utterance* zUtterance) const { delete_utterance(zUtterance); }
};
struct DeleteVoice {
  void operator()(cst_voice* zVoice) const { delete_voice(zVoice); }
};

/// Adds the phones of one of flite's words to `zPhones`.
void AddPhones(const cst_item* zWord, WordPhones& zPhones) {
  const cst_item* const word = item_as(zWord, "SylStructure");
  for (const cst_item* syllable = item_daughter(word); syllable != nullptr;
       syllable = item_next(syllable)) {
    const bool isStressed = std::string_view(item_feat_string(syllable, "stress")) == "1";
    for (const cst_item* segment = item_daughter(syllable); segment != nullptr;
         segment = item_next(segment)) {
      if (const std::optional<Phone> phone = PhoneNamed(item_feat_string(segment, "name"))) {
        zPhones.push_back({*phone, isStressed});
      }
    }
  }
}

class FlitePhones : public PhoneSource {
 public:
  FlitePhones() : voice_(new_voice()), lexicon_(cmu_lex_init()) {
    usenglish_init(voice_.get());
    feat_set(voice_->features, "lexicon", lexicon_val(lexicon_));
  }

  std::vector<WordPhones> PhonesOf(std::span<const std::string> zWords) override {
    std::string text;
    for (const std::string& word : zWords) {
      text.append(word).append(" ");
    }
    const std::unique_ptr<cst_utterance, DeleteUtterance> utterance = Analyse(text);
    std::vector<WordPhones> phones;
    // One token for each word; flite may read a token as several words (USB, we'll).
    for (const cst_item* token = relation_head(utt_relation(utterance.get(), "Token"));
         token != nullptr && phones.size() < zWords.size(); token = item_next(token)) {
      phones.emplace_back();
      for (const cst_item* word = item_daughter(token); word != nullptr; word = item_next(word)) {
        AddPhones(word, phones.back());
      }
    }
    phones.resize(zWords.size());
    return phones;
  }

 private:
  std::unique_ptr<cst_utterance, DeleteUtterance> Analyse(const std::string& zText) const {
    std::unique_ptr<cst_utterance, DeleteUtterance> utterance(new_utterance());
    cst_utterance* const analysed = utterance.get();
    utt_init(analysed, voice_.get());
    utt_set_input_text(analysed, zText.c_str());
    default_tokenization(analysed);
    default_textanalysis(analysed);
    default_pos_tagger(analysed);
    default_phrasing(analysed);
    default_lexical_insertion(analysed);
    default_pause_insertion(analysed);
    lexicon_->postlex(analysed);
    return utterance;
  }

  std::unique_ptr<cst_voice, DeleteVoice> voice_;
  cst_lexicon* lexicon_;  // belongs to flite
};

}  // namespace

std::unique_ptr<PhoneSource> CreatePhoneSource() {
  return std::make_unique<FlitePhones>();
}

}  // namespace loquitor
