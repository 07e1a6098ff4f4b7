// Tables of mapping rules: one function for each set of part-of-speech codes.
#ifndef KZ_GRAMMAR_MAP_RULES_H
#define KZ_GRAMMAR_MAP_RULES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "grammar/map_steps.h"

namespace kz {

using MapRule = void (*)(MapSteps&);

struct MapRow {
  std::string_view codes;  // Windows-1251
  MapRule rule;
};

// The rows of one function, found by code.
template <std::size_t N>
class MapRules {
 public:
  consteval MapRules(const MapRow (&rows)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
      rules_[i] = rows[i].rule;
      for (const char c : rows[i].codes) {
        std::uint8_t& row = row_of_code_[static_cast<unsigned char>(c)];
        if (row != kNone) throw "a code in two rows";
        row = static_cast<std::uint8_t>(i + 1);
      }
    }
  }

  // Derives the summary of a word record from one of its two grammar records.
  void apply(std::uint8_t* record, GRAMINFO (WordRecordView::*gram)() const,
             std::int16_t code) const {
    if (record == nullptr) return;
    const std::uint8_t row = row_of_code_[static_cast<unsigned char>(code)];
    if (row == kNone) return;
    const WordRecordView view(record);
    MapSteps steps{view, (view.*gram)(), static_cast<unsigned char>(code)};
    rules_[row - 1](steps);
  }

 private:
  static constexpr std::uint8_t kNone = 0;
  std::array<std::uint8_t, 256> row_of_code_{};
  std::array<MapRule, N> rules_{};
};

}  // namespace kz

#endif  // KZ_GRAMMAR_MAP_RULES_H
