// Queues: order, keys, priorities.
#include "kz/queue.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "kz/strutil.h"

namespace {

// The data of the elements of one link as digits; checks the tail.
std::string order(const KZQUE& queue, KZQUEOBJ* KZQUEOBJ::*link = &KZQUEOBJ::next) {
  std::string digits;
  const void* last = &queue;
  for (const KZQUEOBJ* element = queue.head; element != nullptr; element = element->*link) {
    digits += static_cast<char>('0' + element->data);
    last = element;
  }
  EXPECT_EQ(queue.tail, last);
  return digits;
}

TEST(Queue, ChainsElementsAtBothEndsAndTakesThemOut) {
  std::vector<KZQUEOBJ> elements(5);
  KZQUE queue, back;
  initque(&queue);
  initque(&back);
  EXPECT_EQ(order(queue), "");
  for (int i = 0; i < 5; ++i) {
    KZQUEOBJ& element = elements[static_cast<std::size_t>(i)];
    element.data = i;
    element.id = static_cast<std::int16_t>(i / 2);
    element.did = static_cast<std::int16_t>(-i);
    (i == 3 ? enque1 : enque)(&queue, &element);
    enque_back(&back, &element);
  }
  EXPECT_EQ(order(queue), "30124");
  EXPECT_EQ(order(back, &KZQUEOBJ::next_back), "01234");
  for (const int i : {0, 1, 2, 3}) EXPECT_EQ(elements[static_cast<std::size_t>(i)].sequence, i + 1);

  KZQUEOBJ* previous = nullptr;
  EXPECT_EQ(id_in_que(&queue, 0, &previous), &elements[0]) << "the first of two";
  EXPECT_EQ(previous, &elements[3]);
  EXPECT_EQ(did_in_que(&queue, -3, &previous), &elements[3]);
  EXPECT_EQ(previous, &elements[3]) << "the head is its own";
  EXPECT_EQ(id_in_que(&queue, 7, &previous), nullptr);
  EXPECT_EQ(previous, nullptr);
  EXPECT_EQ(did_in_que(&queue, 7, nullptr), nullptr);
  EXPECT_EQ(del_in_que(&queue, 7), nullptr);

  EXPECT_EQ(del_did_in_que(&queue, -4), &elements[4]);
  EXPECT_EQ(order(queue), "3012") << "the tail goes back";
  EXPECT_EQ(del_in_que(&queue, 0), &elements[0]);
  EXPECT_EQ(order(queue), "312");
  delque(&queue, &elements[3], &elements[3]);
  EXPECT_EQ(order(queue), "12");
  EXPECT_EQ(deque(&queue), &elements[1]);
  EXPECT_EQ(del_in_que(&queue, 1), &elements[2]);
  EXPECT_EQ(order(queue), "");
  enque1(&queue, &elements[4]);
  EXPECT_EQ(order(queue), "4");
  EXPECT_EQ(elements[4].sequence, 1);
  elements[4].sequence = 32767;
  enque(&queue, &elements[3]);
  enque1(&queue, &elements[2]);
  EXPECT_EQ(elements[3].sequence, -32768);
  EXPECT_EQ(elements[2].sequence, -32767) << "counted from the tail";
  for (KZQUEOBJ& element : elements) EXPECT_EQ(deque_back(&back), &element);
  EXPECT_EQ(deque_back(&back), nullptr);
  EXPECT_EQ(order(back, &KZQUEOBJ::next_back), "");
}

TEST(Queue, OrdersByPriorityAndGivesOneWhenAsked) {
  using Insert = void (*)(KZQUE*, KZQUEOBJ*);
  for (const auto& [insert, link] :
       {std::pair<Insert, KZQUEOBJ * KZQUEOBJ::*>{enque_prio, &KZQUEOBJ::next},
        {enque_prio_back, &KZQUEOBJ::next_back}}) {
    const std::uint8_t priorities[] = {255, 5, 2, 5, 1, 0, 255, 254, 255, 255};
    std::vector<KZQUEOBJ> elements(std::size(priorities));
    KZQUE queue;
    initque(&queue);
    for (std::size_t i = 0; i < elements.size(); ++i) {
      elements[i].data = static_cast<std::int32_t>(i);
      elements[i].priority = priorities[i];
      elements[i].id = 77;
      insert(&queue, &elements[i]);
      order(queue, link);
    }
    EXPECT_EQ(order(queue, link), "5042136789");
    const int given[] = {1, 5, 2, 5, 1, 0, 6, 254, 255, 0};  // 255 and 1 more, in a byte
    for (std::size_t i = 0; i < elements.size(); ++i) {
      EXPECT_EQ(elements[i].priority, given[i]) << i;
      EXPECT_EQ(elements[i].id, priorities[i] == 255 ? given[i] : 77) << i;
    }
  }
}

TEST(Queue, MakesZeroedElements) {
  KZQUEOBJ* const element = newqueobj(-5);
  ASSERT_NE(element, nullptr);
  EXPECT_EQ(element->data, -5);
  EXPECT_TRUE(element->next == nullptr && element->next_back == nullptr);
  EXPECT_EQ(element->id | element->did | element->sequence | element->priority, 0);
  kz_misc_free(element);
}

}  // namespace
