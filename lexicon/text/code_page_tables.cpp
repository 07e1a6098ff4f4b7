// The upper halves of the seven code pages, row by row as their standards print them.
#include "lexicon/text/code_page_tables.h"

namespace kz::lexicon {
namespace {

// A literal of 128 characters, U+FFFD for none.
using UpperHalf = char16_t[129];

// Windows-1251
constexpr UpperHalf kWindows1251 =
    u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏ"
    u"ђ‘’“”•–—\uFFFD™љ›њќћџ"
    u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї"
    u"°±Ііґµ¶·ё№є»јЅѕї"
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмноп"
    u"рстуфхцчшщъыьэюя";

// Windows-1252
constexpr UpperHalf kWindows1252 =
    u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD"
    u"\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
    u"ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    u"àáâãäåæçèéêëìíîï"
    u"ðñòóôõö÷øùúûüýþÿ";

// IBM CP866
constexpr UpperHalf kCp866 =
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмноп"
    u"░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
    u"╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"рстуфхцчшщъыьэюя"
    u"ЁёЄєЇїЎў°∙·√№¤■\u00A0";

// IBM CP850
constexpr UpperHalf kCp850 =
    u"ÇüéâäàåçêëèïîìÄÅ"
    u"ÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»"
    u"░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤"
    u"ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´"
    u"\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

// KOI8-R, RFC 1489
constexpr UpperHalf kKoi8R =
    u"─│┌┐└┘├┤┬┴┼▀▄█▌▐"
    u"░▒▓⌠■∙√≈≤≥\u00A0⌡°²·÷"
    u"═║╒ё╓╔╕╖╗╘╙╚╛╜╝╞"
    u"╟╠╡Ё╢╣╤╥╦╧╨╩╪╫╬©"
    u"юабцдефгхийклмно"
    u"пярстужвьызшэщчъ"
    u"ЮАБЦДЕФГХИЙКЛМНО"
    u"ПЯРСТУЖВЬЫЗШЭЩЧЪ";

// ISO 8859-5
constexpr UpperHalf kIso88595 =
    u"\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8D\x8E\x8F"
    u"\x90\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9D\x9E\x9F"
    u"\u00A0ЁЂЃЄЅІЇЈЉЊЋЌ\u00ADЎЏ"
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмноп"
    u"рстуфхцчшщъыьэюя"
    u"№ёђѓєѕіїјљњћќ§ўџ";

// Mac Cyrillic, with the euro sign where the currency sign was
constexpr UpperHalf kMacCyrillic =
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"†°Ґ£§•¶І®©™Ђђ≠Ѓѓ"
    u"∞±≤≥іµґЈЄєЇїЉљЊњ"
    u"јЅ¬√ƒ≈∆«»…\u00A0ЋћЌќѕ"
    u"–—“”‘’÷„ЎўЏџ№Ёёя"
    u"абвгдежзийклмноп"
    u"рстуфхцчшщъыьэю€";

constexpr PageTable make_table(const UpperHalf& upper) {
  PageTable table{};
  std::size_t blocks = 1;
  for (std::size_t byte = 0; byte < table.characters.size(); ++byte) {
    const char16_t c = byte < 128 ? static_cast<char16_t>(byte) : upper[byte - 128];
    table.characters[byte] = c;
    if (c == kNoCharacter) continue;
    std::uint8_t& block = table.block_of[c >> 8];
    if (block == 0) block = static_cast<std::uint8_t>(blocks++);
    table.blocks.at(block)[c & 0xFF] = static_cast<std::uint8_t>(byte);
  }
  return table;
}

// In the order of CodePage.
constexpr std::array<PageTable, 7> kTables = {
    make_table(kWindows1251), make_table(kWindows1252), make_table(kCp866),
    make_table(kCp850),       make_table(kKoi8R),       make_table(kIso88595),
    make_table(kMacCyrillic),
};

}  // namespace

const PageTable& table_of(CodePage page) { return kTables.at(static_cast<std::size_t>(page)); }

}  // namespace kz::lexicon
