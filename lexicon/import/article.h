// Articles of dictd databases: free text with a layout that can be told.
//
// Two layouts are known. "Marked" articles have pronunciations and parts of speech on their first
// line, "Haus /haʊs/ <n, neut>", then translations, each meaning on a line of its own. "Labelled"
// ones have them further down, "[haʊs] _n. дом", with meanings numbered 1) 2) under parts of speech
// numbered 1. 2.
#ifndef KZ_LEXICON_ARTICLE_H
#define KZ_LEXICON_ARTICLE_H

#include <string>
#include <string_view>
#include <vector>

#include "lexicon/source/body_writer.h"

namespace kz::lexicon {

// The entries of one article: one per part of speech. Their headword is that of the first line.
std::vector<EntryDraft> read_article(std::u32string_view article);

// Steps of read_article.
bool is_marked(std::u32string_view first_line);
std::vector<EntryDraft> read_marked(const std::vector<std::u32string>& lines);
std::vector<EntryDraft> read_labelled(const std::vector<std::u32string>& lines);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ARTICLE_H
