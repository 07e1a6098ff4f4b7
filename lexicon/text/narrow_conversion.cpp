// Pairs of code pages and the functions for them.
#include "lexicon/text/narrow_conversion.h"

#include <algorithm>
#include <array>
#include <new>

#include "kz/codepage.h"
#include "kzlexicon/error.h"

namespace kz::lexicon {
namespace {

constexpr std::array<NarrowPair, 16> kPairs = {{
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

}  // namespace

std::span<const NarrowPair> narrow_pairs() { return kPairs; }

const NarrowPair& find_narrow_pair(const Encoding& from, const Encoding& to) {
  std::string names;
  for (const NarrowPair& pair : kPairs) {
    if (pair.from == from.name && pair.to == to.name) return pair;
    names += "\n  " + std::string(pair.from) + " to " + std::string(pair.to);
  }
  throw Error(ErrorCode::kArgument, "there is no narrow conversion from " + std::string(from.name) +
                                        " to " + std::string(to.name) + "; there are" + names);
}

void append_narrowed(std::string_view text, const NarrowPair& pair, std::string& out) {
  const std::string source(text);
  std::string room;
  for (std::size_t at = 0;;) {
    const std::size_t end = std::min(source.find('\0', at), source.size());
    if (end - at > room.max_size() / pair.growth - 1) throw std::bad_alloc();
    room.resize(std::max(room.size(), (end - at) * pair.growth + 1));
    out.append(room.data(), pair.convert(source.data() + at, room.data()));
    if (end == source.size()) return;
    out += '\0';
    at = end + 1;
  }
}

}  // namespace kz::lexicon
