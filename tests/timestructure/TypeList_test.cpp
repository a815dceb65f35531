#include "timestructure/TypeList.h"

#include <gmock/gmock.h>

#include <random>
#include <stdexcept>
#include <tuple>

#include "tools/XmlDocument.h"

namespace qv {
namespace {

using testing::ElementsAre;

constexpr EditorEnd cancelled{false, true};
constexpr EditorEnd confirmed{true, false};
constexpr EditorEnd confirmedWithChange{true, true};

/// The hour types b, C, a and a child of another tag.
class TypeListTest : public testing::Test {
 protected:
  static std::unique_ptr<XmlNode> Parsed(const char* text) {
    XmlDocument document;
    EXPECT_TRUE(document.Parse(text));
    return std::make_unique<XmlNode>(*document.Root());
  }

  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> names;
    for (const ColouredType& row : list.Rows()) {
      names.emplace_back(row.name.ToView());
    }
    return names;
  }

  /// An editor that gives the type a name.
  static RunEditor Naming(const wchar_t* name, EditorEnd end) {
    return [=](XmlNode& type) {
      type.SetValue(L"name", name);
      return end;
    };
  }

  std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>1</id><name>b</name><color>0000FF</color></hour>"
      "<other><name>x</name></other>"
      "<hour><id>2</id><name>C</name><color>ff0000</color></hour>"
      "<hour><id>3</id><name>a</name></hour></hourTypes>");
  const XmlNode before{*hours};
  TypeList list{*hours, L"hour"};
};

TEST_F(TypeListTest, ListsItsTagSortedByNameWithoutRegardToCase) {
  EXPECT_THAT(Names(), ElementsAre(L"a", L"b", L"C"));
  EXPECT_FALSE(list.IsModified());
}

TEST_F(TypeListTest, EqualNamesStandInTheOrderOfTheDocument) {
  const auto equal = Parsed(
      "<hourTypes><hour><id>1</id><name>Peak</name></hour><hour><id>2</id><name>peak</name></hour>"
      "<hour><id>3</id><name>PEAK</name></hour></hourTypes>");
  const TypeList types(*equal, L"hour");
  std::wstring ids;
  for (const ColouredType& row : types.Rows()) {
    ids += row.node->Value(L"id").ToView();
  }
  EXPECT_EQ(ids, L"123");
}

TEST_F(TypeListTest, ColoursAreReadInLettersOfEitherCase) {
  EXPECT_EQ(list.Rows()[1].colour, 0x0000FFU);
  EXPECT_EQ(list.Rows()[2].colour, 0xFF0000U);
  EXPECT_EQ(list.Rows()[0].colour, 0U) << "a colour that is missing";
}

TEST_F(TypeListTest, AnEmptyContainerHasNoRows) {
  XmlNode empty(L"hourTypes");
  TypeList none(empty, L"hour");
  EXPECT_TRUE(none.Rows().empty());
  EXPECT_EQ(none.OnRemove(std::nullopt), ListEnd());
  EXPECT_EQ(none.OnRemove(0), ListEnd());
  EXPECT_EQ(none.OnModify(std::nullopt, Naming(L"n", confirmed)), ListEnd());
}

TEST_F(TypeListTest, AddAppendsANewWhiteTypeBeforeTheEditorRuns) {
  const auto end = list.OnAdd([&](XmlNode& type) {
    EXPECT_EQ(&type, *std::prev(hours->ChildsEnd()));
    EXPECT_EQ(type.Tag(), L"hour");
    std::vector<std::wstring> fields;
    for (auto field = type.ChildsBegin(); field != type.ChildsEnd(); ++field) {
      fields.emplace_back((*field)->Tag().ToView());
    }
    EXPECT_THAT(fields, ElementsAre(L"id", L"name", L"color"));
    EXPECT_EQ(type.Value(L"id").Length(), 36U);
    EXPECT_EQ(type.Value(L"name", L"?"), L"");
    EXPECT_EQ(type.Value(L"color"), L"FFFFFF");
    type.SetValue(L"name", L"aa");
    return confirmed;
  });
  EXPECT_EQ(end, (ListEnd{true, std::nullopt, 1}));
  EXPECT_THAT(Names(), ElementsAre(L"a", L"aa", L"b", L"C"));
  EXPECT_TRUE(list.IsModified());
}

TEST_F(TypeListTest, ACancelledAddLeavesEverythingAsItWas) {
  EXPECT_EQ(list.OnAdd(Naming(L"n", cancelled)), ListEnd());
  EXPECT_EQ(*hours, before);
  EXPECT_FALSE(list.IsModified());
}

TEST_F(TypeListTest, AnEditorThatThrowsLeavesTheDocumentAsItWas) {
  const RunEditor throwing = [](XmlNode& type) -> EditorEnd {
    type.SetValue(L"name", L"half");
    throw std::runtime_error("editor");
  };
  EXPECT_THROW(std::ignore = list.OnAdd(throwing), std::runtime_error);
  EXPECT_THROW(std::ignore = list.OnModify(0, throwing), std::runtime_error);
  EXPECT_EQ(*hours, before);
  EXPECT_FALSE(list.IsModified());
}

TEST_F(TypeListTest, ModifyWorksOnACopy) {
  std::ignore = list.OnModify(1, [&](XmlNode& type) {
    EXPECT_EQ(type, *list.Rows()[1].node);
    type.SetValue(L"name", L"n");
    EXPECT_EQ(*hours, before);
    return cancelled;
  });
  EXPECT_EQ(*hours, before);
  EXPECT_FALSE(list.IsModified());
}

TEST_F(TypeListTest, AfterANewNameTheRowAtTheOldPlaceIsSelected) {
  EXPECT_EQ(list.OnModify(0, Naming(L"z", confirmedWithChange)), (ListEnd{true, 0}));
  EXPECT_THAT(Names(), ElementsAre(L"b", L"C", L"z"));
  EXPECT_TRUE(list.IsModified());
  EXPECT_EQ(hours->NodeV(L"hour?name=%s?", L"z")->Value(L"id"), L"3");
}

TEST_F(TypeListTest, AConfirmedModifyWithoutAChangeIsStillTakenOver) {
  const auto end = list.OnModify(2, [](XmlNode& type) {
    type.SetValue(L"value", L"");
    return confirmed;
  });
  EXPECT_EQ(end, (ListEnd{true, 2}));
  EXPECT_FALSE(list.IsModified());
  EXPECT_TRUE(hours->NodeV(L"hour?id=%s?", L"2")->Node(L"value"));
}

TEST_F(TypeListTest, RemoveSelectsTheRowThatMovedUpOrElseTheLastOne) {
  EXPECT_EQ(list.OnRemove(1), (ListEnd{true, 1}));
  EXPECT_THAT(Names(), ElementsAre(L"a", L"C"));
  EXPECT_EQ(list.OnRemove(1), (ListEnd{true, 0}));
  EXPECT_EQ(list.OnRemove(0), (ListEnd{true, std::nullopt}));
  EXPECT_TRUE(list.Rows().empty());
  EXPECT_TRUE(list.IsModified());
  EXPECT_TRUE(hours->Node(L"other"));
}

TEST_F(TypeListTest, ARemovalOfNoRowDoesNothing) {
  EXPECT_EQ(list.OnRemove(std::nullopt), ListEnd());
  EXPECT_EQ(list.OnRemove(3), ListEnd());
  EXPECT_EQ(list.OnRemove(-1), ListEnd());
  EXPECT_EQ(*hours, before);
}

TEST_F(TypeListTest, TheFlagStaysSetWhateverComesAfter) {
  std::ignore = list.OnRemove(0);
  std::ignore = list.OnAdd(Naming(L"n", cancelled));
  std::ignore = list.OnModify(0, Naming(L"n", confirmed));
  EXPECT_TRUE(list.IsModified());
}

TEST_F(TypeListTest, ADayTypeThatIsCancelledTakesItsSlotsAlong) {
  const auto days = Parsed("<dayTypes><day><name>d</name><slot/></day></dayTypes>");
  const XmlNode untouched(*days);
  TypeList dayTypes(*days, L"day");
  std::ignore = dayTypes.OnAdd([](XmlNode& day) {
    day.NewChild(L"slot", nullptr);
    return cancelled;
  });
  EXPECT_EQ(*days, untouched);
}

/// Random verbs against a list of names that a test can understand.
TEST_F(TypeListTest, RandomVerbsFollowASimpleModel) {
  std::mt19937 random(7);
  const auto below = [&](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  std::vector<std::wstring> names = {L"a", L"b", L"c"};
  hours->SetValue(L"other", L"stays");
  std::ignore = list.OnModify(2, Naming(L"c", confirmed));
  for (int step = 0; step < 2000; ++step) {
    const std::wstring name = L"n" + std::to_wstring(10000 + step);
    const int row = below(static_cast<int>(names.size()) + 1) - 1;
    const bool confirm = below(3) != 0;
    const auto end = confirm ? confirmedWithChange : cancelled;
    const bool isRow = row >= 0;
    switch (below(3)) {
      case 0:
        std::ignore = list.OnAdd(Naming(name.c_str(), end));
        if (confirm) {
          names.push_back(name);
        }
        break;
      case 1:
        std::ignore =
            list.OnModify(isRow ? std::optional(row) : std::nullopt, Naming(name.c_str(), end));
        if (confirm && isRow) {
          names[static_cast<std::size_t>(row)] = name;
        }
        break;
      default:
        std::ignore = list.OnRemove(isRow ? std::optional(row) : std::nullopt);
        if (isRow) {
          names.erase(names.begin() + row);
        }
    }
    std::sort(names.begin(), names.end());
    ASSERT_EQ(Names(), names) << step;
  }
  EXPECT_EQ(hours->Value(L"other"), L"stays");
}

}  // namespace
}  // namespace qv
