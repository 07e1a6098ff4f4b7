// Queues against a list of the same elements.
#include "kz/queue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <list>
#include <random>
#include <vector>

#include "kz/strutil.h"

namespace {

using Link = KZQUEOBJ* KZQUEOBJ::*;

// A queue of one of the links beside a list that is handled alike.
class Checked {
 public:
  explicit Checked(Link link) : link_(link) { initque(&queue_); }

  KZQUE* queue() { return &queue_; }
  std::list<KZQUEOBJ*>& list() { return list_; }

  void expect_equal() {
    auto* const header = reinterpret_cast<KZQUEOBJ*>(&queue_);
    ASSERT_EQ(queue_.tail, list_.empty() ? header : list_.back());
    const KZQUEOBJ* element = queue_.head;
    for (const KZQUEOBJ* expected : list_) {
      ASSERT_EQ(element, expected);
      element = element->*link_;
    }
    ASSERT_EQ(element, nullptr);
  }

  void insert_by_priority(KZQUEOBJ* element, void (*function)(KZQUE*, KZQUEOBJ*)) {
    const int wanted = element->priority;
    const int last = list_.empty() ? 0 : list_.back()->priority;
    const int id = element->id;
    list_.insert(std::find_if(list_.begin(), list_.end(),
                              [=](const KZQUEOBJ* other) { return other->priority > wanted; }),
                 element);
    function(&queue_, element);
    EXPECT_EQ(element->priority, wanted == 255 ? (last + 1) % 256 : wanted);
    EXPECT_EQ(element->id, wanted == 255 ? element->priority : id);
  }

  KZQUEOBJ* take_first() {
    if (list_.empty()) return nullptr;
    KZQUEOBJ* const first = list_.front();
    list_.pop_front();
    return first;
  }

 private:
  KZQUE queue_;
  Link link_;
  std::list<KZQUEOBJ*> list_;
};

using Find = KZQUEOBJ* (*)(KZQUE*, std::int16_t, KZQUEOBJ**);

// Takes the element out of the list that both ways of finding it must give; null when there is
// none.
KZQUEOBJ* expect_found(Checked& checked, std::int16_t KZQUEOBJ::*key, std::int16_t value,
                       Find find) {
  auto& list = checked.list();
  const auto at = std::find_if(list.begin(), list.end(),
                               [=](const KZQUEOBJ* other) { return other->*key == value; });
  KZQUEOBJ* previous = reinterpret_cast<KZQUEOBJ*>(checked.queue());
  KZQUEOBJ* const found = find(checked.queue(), value, &previous);
  EXPECT_EQ(find(checked.queue(), value, nullptr), found);
  if (at == list.end()) {
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(previous, nullptr);
    return nullptr;
  }
  EXPECT_EQ(found, *at);
  EXPECT_EQ(previous, at == list.begin() ? *at : *std::prev(at));
  list.erase(at);
  return found;
}

TEST(Queue, DoesWhatAListDoes) {
  std::mt19937 random(2);
  std::array<KZQUEOBJ, 12> elements;
  Checked main(&KZQUEOBJ::next);
  Checked back(&KZQUEOBJ::next_back);
  const auto one_not_in = [&](const std::list<KZQUEOBJ*>& list) -> KZQUEOBJ* {
    KZQUEOBJ* const element = &elements[random() % elements.size()];
    return std::find(list.begin(), list.end(), element) == list.end() ? element : nullptr;
  };
  for (int i = 0; i < 200000; ++i) {
    const auto operation = random() % 14;
    const bool is_back = operation >= 11;
    Checked& queue = is_back ? back : main;
    if (operation < 4 || (is_back && operation < 13)) {
      KZQUEOBJ* const element = one_not_in(queue.list());
      if (element == nullptr) continue;
      const bool is_in_other = std::count((is_back ? main : back).list().begin(),
                                          (is_back ? main : back).list().end(), element) != 0;
      if (!is_in_other) {
        element->id = static_cast<std::int16_t>(random() % 6);
        element->did = static_cast<std::int16_t>(random() % 6 - 3);
        element->sequence = static_cast<std::int16_t>(random());
      }
      if (operation == 0 || operation == 1) {
        const auto sequence =
            static_cast<std::int16_t>(queue.list().empty() ? 1 : queue.list().back()->sequence + 1);
        if (operation == 0) {
          queue.list().push_back(element);
          enque(queue.queue(), element);
        } else {
          queue.list().push_front(element);
          enque1(queue.queue(), element);
        }
        ASSERT_EQ(element->sequence, sequence);
      } else if (operation == 11) {
        queue.list().push_back(element);
        enque_back(queue.queue(), element);
      } else if (!is_in_other) {  // its priority may change
        element->priority =
            static_cast<std::uint8_t>(random() % 5 == 0 ? 250 + random() % 6 : random() % 4);
        queue.insert_by_priority(element, is_back ? enque_prio_back : enque_prio);
      }
    } else if (operation == 4 || operation == 5) {
      ASSERT_EQ(deque(main.queue()), main.take_first());
    } else if (operation == 13) {
      ASSERT_EQ(deque_back(back.queue()), back.take_first());
    } else {
      const bool by_id = operation < 8;
      const auto key = by_id ? &KZQUEOBJ::id : &KZQUEOBJ::did;
      const auto value = static_cast<std::int16_t>(by_id ? random() % 6 : random() % 6 - 3);
      const Find find = by_id ? id_in_que : did_in_que;
      KZQUEOBJ* previous = nullptr;
      KZQUEOBJ* const found = find(main.queue(), value, &previous);
      ASSERT_EQ(expect_found(main, key, value, find), found);
      if (operation % 2 == 0) {
        delque(main.queue(), found, previous);
      } else {
        ASSERT_EQ((by_id ? del_in_que : del_did_in_que)(main.queue(), value), found);
      }
    }
    main.expect_equal();
    back.expect_equal();
    if (HasFatalFailure()) FAIL() << "operation " << operation;
  }
}

TEST(Queue, OrdersByPriorityAndGivesOneWhenAsked) {
  std::vector<KZQUEOBJ> elements(4);
  const std::uint8_t priorities[] = {5, 2, 5, 255};
  KZQUE queue;
  initque(&queue);
  for (std::size_t i = 0; i < 4; ++i) {
    elements[i].priority = priorities[i];
    enque_prio(&queue, &elements[i]);
  }
  for (const std::size_t expected : {1, 0, 2, 3}) EXPECT_EQ(deque(&queue), &elements[expected]);
  EXPECT_EQ(deque(&queue), nullptr);
  EXPECT_EQ(elements[3].priority, 6);
  EXPECT_EQ(elements[3].id, 6);

  elements[3].priority = 255;
  enque_prio_back(&queue, &elements[3]);
  EXPECT_EQ(elements[3].priority, 1);
  EXPECT_EQ(elements[3].id, 1);
}

TEST(Queue, NumbersItsElementsInSixteenBits) {
  KZQUEOBJ first{}, second{}, third{};
  KZQUE queue;
  initque(&queue);
  enque(&queue, &first);
  EXPECT_EQ(first.sequence, 1);
  first.sequence = 32767;
  enque(&queue, &second);
  EXPECT_EQ(second.sequence, -32768);
  enque1(&queue, &third);
  EXPECT_EQ(third.sequence, -32767) << "counted from the tail";
}

TEST(Queue, MakesZeroedElements) {
  KZQUEOBJ* const element = newqueobj(-5);
  ASSERT_NE(element, nullptr);
  EXPECT_EQ(element->data, -5);
  EXPECT_EQ(element->next, nullptr);
  EXPECT_EQ(element->next_back, nullptr);
  EXPECT_EQ(element->id, 0);
  EXPECT_EQ(element->did, 0);
  EXPECT_EQ(element->sequence, 0);
  EXPECT_EQ(element->priority, 0);
  kz_misc_free(element);
}

}  // namespace
