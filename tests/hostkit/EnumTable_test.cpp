#include "hostkit/EnumTable.h"

#include <gtest/gtest.h>

#include <string>

#include "hostkit/TextRow.h"

namespace qv {
namespace {

enum class Meal { Breakfast, Lunch, Count };

using MealRow = TextRow<Meal, char>;

template <std::size_t size>
constexpr bool IsComplete(const std::array<MealRow, size>& rows) {
  return EnumTable<MealRow, size>::IsComplete(rows);
}

constexpr MealRow breakfast{Meal::Breakfast, "desayuno", "breakfast"};
constexpr MealRow lunch{Meal::Lunch, "comida", "lunch"};
constexpr EnumTable meals(std::array{breakfast, lunch});

static_assert(IsComplete(std::array{breakfast, lunch}));
static_assert(!IsComplete(std::array{lunch, breakfast}), "rows change places");
static_assert(!IsComplete(std::array{breakfast}), "a row is missing");
static_assert(!IsComplete(std::array{breakfast, breakfast}), "a row comes twice");
static_assert(!IsComplete(std::array{breakfast, lunch, MealRow{Meal::Count, "", ""}}),
              "there is a row too many");

TEST(EnumTable, FindsTheRowOfEachEnumerator) {
  EXPECT_EQ(meals[Meal::Breakfast].key, Meal::Breakfast);
  EXPECT_EQ(meals[Meal::Lunch].key, Meal::Lunch);
}

TEST(EnumTable, ARowOfTextsHasOneForEachLanguage) {
  EXPECT_EQ(meals[Meal::Lunch].In(Language::Spanish), std::string("comida"));
  EXPECT_EQ(meals[Meal::Lunch].In(Language::English), std::string("lunch"));
}

}  // namespace
}  // namespace qv
