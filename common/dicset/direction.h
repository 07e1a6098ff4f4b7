// The translation directions, in the order of a set's arrays, and their base dictionaries.
#ifndef KZ_DICSET_DIRECTION_H
#define KZ_DICSET_DIRECTION_H

#include <cstddef>
#include <string_view>

namespace kz {

inline constexpr std::size_t kDirectionLength = 4;

struct Direction {
  std::string_view code;
  // File names: the translation dictionary, and the general one of the target language.
  std::string_view translation;
  std::string_view general;
};

inline constexpr Direction kDirections[] = {
    {"ENRU", "baseenru.dic", "baseru.dig"}, {"RUEN", "baseruen.dic", "baseen.dig"},
    {"FRRU", "basefrru.dic", "baseru.dig"}, {"RUFR", "baserufr.dic", "basefr.dig"},
    {"DERU", "basederu.dic", "baseru.dig"}, {"RUDE", "baserude.dic", "basede.dig"},
};

}  // namespace kz

#endif  // KZ_DICSET_DIRECTION_H
