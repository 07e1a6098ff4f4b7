// A slow and obvious model of the queue of a set: lists of loaded dictionaries, and selections.
#ifndef KZ_TESTS_QUEUE_MODEL_H
#define KZ_TESTS_QUEUE_MODEL_H

#include <algorithm>
#include <cctype>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kz::test {

// A dictionary file as it is on the disk.
struct ModelFile {
  std::string path;
  std::string language;
  char type = 'C';
  bool exists = true;
  int time = 0;
  std::set<std::string> words{};

  std::string name() const {
    std::string result = path.substr(path.rfind('/') + 1);
    for (char& c : result) c = static_cast<char>(std::tolower(c));
    return result;
  }
};

// A dictionary of the queue.
struct Loaded {
  const ModelFile* file;
  int mode;
  int time;  // of the file when it was opened
  int id;

  bool changed() const { return !file->exists || file->time != time; }
};

struct QueueModel {
  using Entry = std::shared_ptr<Loaded>;

  std::string language;
  std::vector<Entry> lists[6];
  int index[6] = {};
  Entry current[6];
  int set_list = 0, set_index = 0;
  Entry set_current;

  Entry at(int list, int i) const {
    const auto& all = lists[list];
    return i >= 0 && i < static_cast<int>(all.size()) ? all[static_cast<std::size_t>(i)] : nullptr;
  }

  bool unload(const ModelFile& file, int mode) {
    Entry gone;
    for (const Entry& entry : lists[0]) {
      if (entry->file->name() == file.name()) gone = entry;
    }
    if (!gone) return true;
    if (mode != 0 && (mode == gone->mode || mode == 6) && !gone->changed()) return false;
    for (int list = 0; list < 6; ++list) {
      if (std::erase(lists[list], gone) != 0) {
        index[list] = -1;
        current[list] = nullptr;
      }
      if (current[list] == gone) current[list] = nullptr;
    }
    set_index = -1;
    set_current = nullptr;
    return true;
  }

  Entry load(int position, const ModelFile& file, int mode) {
    if (!unload(file, mode) || !file.exists) return nullptr;
    const int list = file.type == 'C' && file.language[0] == language[0] ? 1
                     : file.language[0] == 'R'                           ? 2
                                                                         : 3;
    const int size = static_cast<int>(lists[list].size());
    if (position == -1 || position > size) position = size;
    const auto entry = std::make_shared<Loaded>(Loaded{&file, mode, file.time, position});
    lists[list].insert(lists[list].begin() + position, entry);
    lists[0].push_back(entry);
    return entry;
  }

  void clear() {
    for (int list = 4; list < 6; ++list) {
      std::erase_if(lists[list], [&](const Entry& entry) {
        return std::find(lists[0].begin(), lists[0].end(), entry) != lists[0].end();
      });
    }
    for (int list = 0; list < 4; ++list) lists[list].clear();
    for (int list = 0; list < 6; ++list) {
      index[list] = 0;
      current[list] = nullptr;
    }
    set_list = set_index = 0;
    set_current = nullptr;
  }

  bool clear_if_changed(const std::string& wanted) {
    bool keep = !lists[0].empty() && !lists[1].empty() && lists[1][0]->file->language == wanted;
    for (int list = 1; list <= 3; ++list) {
      for (const Entry& entry : lists[list]) keep = keep && !entry->changed();
    }
    if (!keep) clear();
    return !keep;
  }

  void select(int list, int i) {
    current[list] = set_current = at(list, i);
    index[list] = set_index = current[list] ? i : -1;
  }
  Entry first(int list, int i) {
    set_list = list;
    select(list, i);
    return current[list];
  }
  Entry next(int list) {
    if (list == -1) list = set_list;
    return first(list, index[list] == -1 ? -1 : index[list] + 1);
  }
  int set(int list, int i) {
    if (i == -1)
      i = index[list];
    else if (!at(list, i))
      i = 0;
    select(list, i);
    return set_index;
  }
  int get(int list) {
    set_current = at(list, index[list]);
    set_index = set_current ? index[list] : -1;
    return set_index;
  }
  void set_handler(int list, const Entry& entry) {
    const auto found = std::find(lists[list].begin(), lists[list].end(), entry);
    current[list] = entry;
    index[list] = found == lists[list].end() ? -1 : static_cast<int>(found - lists[list].begin());
  }

  // The dictionary that answers.
  Entry find(int list, const std::string& word, bool rest) {
    if (index[list] == -1 || !current[list]) return nullptr;
    const auto has = [&](const Entry& entry) { return entry->file->words.contains(word); };
    if (!rest && index[list] > 0 && has(current[list])) return current[list];
    const int size = static_cast<int>(lists[list].size());
    for (int i = rest ? index[list] : 0; i < size; ++i) {
      if (!has(at(list, i))) continue;
      index[list] = i;
      return current[list] = at(list, i);
    }
    index[list] = -1;
    current[list] = nullptr;
    return nullptr;
  }

  void enumerate() {
    for (const int list : {4, 5, 1, 2, 3}) {
      int id = 0;
      for (const Entry& entry : lists[list]) entry->id = id++;
    }
  }

  void clear_chains() {
    for (const int list : {4, 5}) {
      while (!lists[list].empty()) unload(*Entry(lists[list][0])->file, 0);
    }
  }
};

}  // namespace kz::test

#endif  // KZ_TESTS_QUEUE_MODEL_H
