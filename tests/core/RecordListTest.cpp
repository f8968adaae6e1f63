#include "core/RecordList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace landsmith {
namespace {

using List = RecordList<int>;

List Counting(int size) {
  List list;
  for (int i = 0; i < size; ++i)
    list.push_back(i);
  return list;
}

std::vector<int> Records(const List& list) {
  return {list.begin(), list.end()};
}

std::vector<std::size_t> Differences(const List& a, const List& b) {
  std::vector<std::size_t> places;
  ForEachDifference(a, b, [&](std::size_t i) { places.push_back(i); });
  return places;
}

TEST(RecordList, CopiesShareWhatNeitherHasChanged) {
  List list = Counting(600);
  List copy = list;
  EXPECT_EQ(&list[599], &copy[599]);
  EXPECT_TRUE(Differences(list, copy).empty());

  for (const std::size_t i : {599U, 3U, 255U})
    copy.Edit(i) = -1;
  list.Edit(256) = -2;
  list.push_back(600);
  EXPECT_EQ(Differences(list, copy), (std::vector<std::size_t>{3, 255, 256, 599}));
  EXPECT_EQ(list[3], 3);
  EXPECT_EQ(copy[256], 256);
  EXPECT_EQ(copy.size(), 600U);
  EXPECT_NE(list, copy);
  EXPECT_EQ(&list[300], &copy[300]) << "beside the changed ones all is shared";
}

enum class Step { Append, Edit, Erase, Move, EraseSome, Truncate };

/// One step, the same on both. They hold something.
void Take(Step step, List& list, std::vector<int>& plain, std::mt19937& random) {
  const auto place = [&] { return static_cast<std::size_t>(random() % plain.size()); };
  const auto at = [&](std::size_t i) { return plain.begin() + static_cast<std::ptrdiff_t>(i); };
  const int value = static_cast<int>(random() % 1000);
  const std::size_t from = place(), to = place();
  switch (step) {
    case Step::Append:
      list.push_back(value), plain.push_back(value);
      break;
    case Step::Edit:
      list.Edit(from) = plain[from] = value;
      break;
    case Step::Erase:
      list.Erase(from), plain.erase(at(from));
      break;
    case Step::Move:
      list.Move(from, to);
      if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
      else
        std::rotate(at(to), at(from), at(from + 1));
      break;
    case Step::EraseSome: {
      const auto goes = [value](int record) { return record % 100 == value % 100; };
      EXPECT_EQ(list.EraseIf(goes), std::erase_if(plain, goes));
      break;
    }
    case Step::Truncate:
      list.Truncate(from), plain.resize(from);
      break;
  }
}

// Sizes around whole chunks, so that the steps cross their borders; copies made on the way stay as they were.
TEST(RecordList, TakesTheStepsOfAVector) {
  std::mt19937 random(3);
  for (const int size : {2, 255, 256, 257, 511, 512, 513, 700}) {
    List list;
    std::vector<int> plain;
    for (int round = 0; round < 60; ++round) {
      const List copy = list;
      const std::vector<int> before = plain;
      for (int i = 0; i < 4; ++i) {
        while (plain.size() < static_cast<std::size_t>(size))
          list.push_back(i), plain.push_back(i);
        Take(static_cast<Step>(random() % 6), list, plain, random);
      }
      ASSERT_EQ(Records(list), plain) << size << ' ' << round;
      ASSERT_EQ(list.size(), plain.size());
      ASSERT_EQ(Records(copy), before) << size << ' ' << round;
      ASSERT_EQ(list == copy, plain == before) << size << ' ' << round;
    }
  }
}

}  // namespace
}  // namespace landsmith
