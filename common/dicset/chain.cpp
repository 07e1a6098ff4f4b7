// The spelling and the thesaurus chain: queue lists 5 and 4, and the arrays that save them.
#include "dicset/array.h"
#include "dicset/descriptor.h"
#include "dicset/set.h"
#include "kz/dictionary.h"

namespace kz {
namespace {

using Chain = ZCObArray[2];

// A dictionary may be in the list without belonging to the queue: it is its holder's then, and
// only leaves the list.
void unload_list(CDicSys& set, std::int16_t number) {
  Queue queue = queue_of(set);
  const ZCObArray& list = *queue.list(number);
  while (list.GetSize() > 0) {
    const CDic* const dictionary = dictionary_at(list, 0);
    const ZCString path = DicGetPath(const_cast<CDic*>(dictionary));
    queue.remove(number, dictionary);
    queue.unload(path, 0);
  }
}

void clear_chain_lists(CDicSys& set) {
  unload_list(set, DIC_LIST_RUSSIAN_CHAIN);
  unload_list(set, DIC_LIST_OTHER_CHAIN);
}

std::int16_t load_chain(CDicSys& set, const Chain& chain) {
  clear_chain_lists(set);
  const bool first_complete = load_array(set, chain[0]);
  const bool second_complete = load_array(set, chain[1]);
  return first_complete && second_complete ? 0 : 1;
}

std::int16_t update_chain(CDicSys& set, Chain& chain) {
  for (ZCObArray& array : chain) remove_descriptors(array);
  append_from_list(set, DIC_LIST_RUSSIAN_CHAIN, chain[1]);
  append_from_list(set, DIC_LIST_OTHER_CHAIN, chain[0]);
  return -1;
}

}  // namespace
}  // namespace kz

void DicQueClearSpellDicChain(CDicSys* set) {
  if (set != nullptr) kz::clear_chain_lists(*set);
}

int16_t DicQueLoadSpellDicChain(CDicSys* set) {
  return set != nullptr ? kz::load_chain(*set, set->spell_chain) : int16_t{0};
}

int16_t DicQueLoadThesaurusDicChain(CDicSys* set) {
  return set != nullptr ? kz::load_chain(*set, set->thesaurus_chain) : int16_t{0};
}

int16_t DicQueUpdateSpellDicChain(CDicSys* set) {
  return set != nullptr ? kz::update_chain(*set, set->spell_chain) : int16_t{0};
}

int16_t DicQueUpdateThesaurusDicChain(CDicSys* set) {
  return set != nullptr ? kz::update_chain(*set, set->thesaurus_chain) : int16_t{0};
}
