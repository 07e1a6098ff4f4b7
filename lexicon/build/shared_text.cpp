// The bodies that move to the shared-text block, and their places in it.
#include "lexicon/build/shared_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <unordered_map>

#include "kz/charclass.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

// Room that a reference is assumed to take before offsets are known.
constexpr std::size_t kReferenceRoom = 8;

bool has_unpackable(std::string_view text) {
  return std::any_of(text.begin(), text.end(), breaks_packing);
}

bool fits_packed(std::string_view entry) {
  return entry.size() <= kPackedRecordMax && !has_unpackable(entry);
}

std::string_view body_of(std::string_view entry) {
  const EntryLayout at = layout_of(entry);
  return entry.substr(at.body, at.source - at.body);
}

// Sharing pays when the copies that go away are longer than what replaces them.
bool saves_room(std::size_t body, std::size_t uses) {
  return uses > 1 && uses * body > body + 1 + uses * kReferenceRoom;
}

std::string with_reference(std::string_view entry, std::size_t offset) {
  std::array<char, 12> number{};
  std::snprintf(number.data(), number.size(), "%zX", offset);
  const EntryLayout at = layout_of(entry);
  std::string stored(entry.substr(0, at.body));
  stored += number.data();
  stored += entry.substr(at.source);
  return stored;
}

}  // namespace

std::optional<std::string> packed_refusal(std::string_view entry, std::string_view language,
                                          bool may_share) {
  const EntryLayout at = layout_of(entry);
  const std::string_view headword = entry.substr(0, at.head_end);
  const auto bad = std::find_if(headword.begin(), headword.end(), breaks_packing);
  if (bad != headword.end()) {
    const std::u32string character = decode(std::string_view(&*bad, 1), source_page(language));
    const bool yo = character == U"ё";
    return "a packed record cannot hold the character '" + to_utf8(character) +
           "' of the headword" + (yo ? " (--fold-yo stores the letter ё as е)" : "");
  }
  if (fits_packed(entry)) return std::nullopt;
  if (!may_share) return "the entry does not fit a packed record without shared text";
  if (has_unpackable(entry.substr(at.head_end, at.body - at.head_end)) ||
      has_unpackable(entry.substr(at.source))) {
    return "a packed record cannot hold a character of the attribute or the source sections";
  }
  if (entry.size() - (at.source - at.body) + kReferenceRoom > kPackedRecordMax) {
    return "headword, attribute and source sections together are too long for a packed record";
  }
  return std::nullopt;
}

bool reads_as_reference(std::string_view body) {
  const std::size_t end = std::min(body.find('\\'), body.size());
  return end > 0 && std::all_of(body.begin(), body.begin() + static_cast<std::ptrdiff_t>(end),
                                [](char c) { return _isxdigit(c) != 0; });
}

SharedText place_bodies(std::vector<Record>& records, bool packed, bool may_share) {
  SharedText shared;
  for (Record& record : records) record.stored = record.text;
  if (!may_share) return shared;

  std::unordered_map<std::string_view, std::size_t> uses;
  for (const Record& record : records) ++uses[body_of(record.text)];

  std::vector<bool> moves(records.size());
  bool any = false;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::string_view text = records[i].text;
    const std::string_view body = body_of(text);
    moves[i] =
        !body.empty() && (saves_room(body.size(), uses[body]) || (packed && !fits_packed(text)));
    any = any || moves[i];
  }
  // Only a dictionary with a block takes numbers for references.
  if (!any) return shared;

  std::unordered_map<std::string_view, std::size_t> offsets;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::string_view body = body_of(records[i].text);
    if (!moves[i] && !reads_as_reference(body)) continue;
    const auto [place, added] = offsets.try_emplace(body, shared.block.size());
    if (added) {
      shared.block += body;
      shared.block += '\0';
      ++shared.texts;
    }
    records[i].stored = with_reference(records[i].text, place->second);
    ++shared.moved;
  }
  return shared;
}

}  // namespace kz::lexicon
