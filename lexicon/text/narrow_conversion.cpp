// Pairs of code pages and the functions of libkzcommon for them.
#include <algorithm>
#include <array>
#include <new>

#include "kz/codepage.h"
#include "kzlexicon/error.h"
#include "kzlexicon/text.h"

namespace kz::lexicon {
namespace {

struct NarrowFunction {
  std::string_view from;
  std::string_view to;
  char* (*convert)(const char* source, char* destination);
  std::size_t growth;  // bytes that one byte may become
};

constexpr std::array<NarrowFunction, 16> kPairs = {{
    {"windows-1251", "cp866", strruansitooem, 1},
    {"cp866", "windows-1251", strruoemtoansi, 1},
    {"windows-1252", "cp850", stransitooem, 1},
    {"cp850", "windows-1252", stroemtoansi, 1},
    {"windows-1251", "koi8-r", stransitokoi8, 1},
    {"koi8-r", "windows-1251", strkoi8toansi, 1},
    {"cp866", "koi8-r", stroemtokoi8, 1},
    {"koi8-r", "cp866", strkoi8tooem, 1},
    {"windows-1251", "iso-8859-5", stransitoiso, 1},
    {"iso-8859-5", "windows-1251", strisotoansi, 1},
    {"cp866", "iso-8859-5", stroemtoiso, 1},
    {"iso-8859-5", "cp866", strisotooem, 1},
    {"cp866", "mac-cyrillic", stroemtomac, 1},
    {"mac-cyrillic", "cp866", strmactooem, 1},
    {"windows-1251", "html", stransitohtml, 6},
    {"html", "windows-1251", strhtmltoansi, 1},
}};

const NarrowFunction& find_pair(const Encoding& from, const Encoding& to) {
  std::string names;
  for (const NarrowFunction& pair : kPairs) {
    if (pair.from == from.name && pair.to == to.name) return pair;
    names += "\n  " + std::string(pair.from) + " to " + std::string(pair.to);
  }
  throw Error(ErrorCode::kArgument, "there is no narrow conversion from " + std::string(from.name) +
                                        " to " + std::string(to.name) + "; there are" + names);
}

class NarrowConversion : public TextFilter {
 public:
  explicit NarrowConversion(const NarrowFunction& function) : function_(function) {}

  void append(std::string_view text, std::string& out) const override {
    const std::string source(text);
    std::string room;
    for (std::size_t at = 0;;) {
      const std::size_t end = std::min(source.find('\0', at), source.size());
      if (end - at > room.max_size() / function_.growth - 1) throw std::bad_alloc();
      room.resize(std::max(room.size(), (end - at) * function_.growth + 1));
      out.append(room.data(), function_.convert(source.data() + at, room.data()));
      if (end == source.size()) return;
      out += '\0';
      at = end + 1;
    }
  }

 private:
  const NarrowFunction& function_;
};

}  // namespace

std::vector<NarrowPair> narrow_pairs() {
  std::vector<NarrowPair> pairs;
  pairs.reserve(kPairs.size());
  for (const NarrowFunction& pair : kPairs) pairs.push_back({pair.from, pair.to});
  return pairs;
}

std::unique_ptr<TextFilter> narrow_conversion(const Encoding& from, const Encoding& to) {
  return std::make_unique<NarrowConversion>(find_pair(from, to));
}

}  // namespace kz::lexicon
