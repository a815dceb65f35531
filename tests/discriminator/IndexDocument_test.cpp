#include "discriminator/IndexDocument.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace qv {
namespace {

/// The text of the index that is made of the container `hourTypes`.
std::string IndexOf(const std::string& hourTypes) {
  XmlDocument source;
  EXPECT_TRUE(source.Parse(hourTypes.c_str()));
  QVNarrowString text;
  EXPECT_TRUE(MakeIndexDocument(*source.Root())->CreateXmlCode(text, false));
  return std::string(text.ToView());
}

/// `xml` as the writer lays it out.
std::string LaidOut(const std::string& xml) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(xml.c_str()));
  QVNarrowString text;
  EXPECT_TRUE(document.CreateXmlCode(text, false));
  return std::string(text.ToView());
}

/// A container of hour types and its index.
struct Case {
  const char* name;
  const char* hourTypes;
  const char* index;
};

void PrintTo(const Case& value, std::ostream* out) { *out << value.name; }

class IndexDocumentOf : public testing::TestWithParam<Case> {};

TEST_P(IndexDocumentOf, Container) {
  EXPECT_EQ(IndexOf(GetParam().hourTypes), LaidOut(GetParam().index));
}

constexpr Case cases[] = {
    {"KeepsNameAndValue",
     "<hourTypes><hour><id>1</id><name>A</name><color>0000FF</color><value>3</value></hour>"
     "</hourTypes>",
     "<hourTypes><hour><name>A</name><value>3</value></hour></hourTypes>"},
    {"KeepsAnEmptyValue",
     "<hourTypes><hour><id>1</id><name>A</name><color>0000FF</color><value/></hour></hourTypes>",
     "<hourTypes><hour><name>A</name><value/></hour></hourTypes>"},
    {"AddsNoValue",
     "<hourTypes><hour><id>1</id><name>A</name><color>0000FF</color></hour></hourTypes>",
     "<hourTypes><hour><name>A</name></hour></hourTypes>"},
    {"KeepsTheOrder",
     "<hourTypes><hour><id>2</id><value>2</value><name>B</name></hour>"
     "<hour><name>A</name><id>1</id></hour></hourTypes>",
     "<hourTypes><hour><value>2</value><name>B</name></hour><hour><name>A</name></hour>"
     "</hourTypes>"},
    {"NeedsNoField", "<hourTypes><hour/><hour><name>A</name></hour></hourTypes>",
     "<hourTypes><hour/><hour><name>A</name></hour></hourTypes>"},
    {"KeepsUnknownFields",
     "<hourTypes><hour><id>1</id><name>A</name><note>n</note></hour></hourTypes>",
     "<hourTypes><hour><name>A</name><note>n</note></hour></hourTypes>"},
    {"TakesTheFieldsOfChildrenOfAnyTag",
     "<hourTypes><other><id>1</id><color>0</color><x/></other></hourTypes>",
     "<hourTypes><other><x/></other></hourTypes>"},
    {"LeavesFieldsThatLieDeeper",
     "<hourTypes><hour><id>1</id><more><id>2</id><color>0</color></more></hour></hourTypes>",
     "<hourTypes><hour><more><id>2</id><color>0</color></more></hour></hourTypes>"},
    {"LeavesFieldsOfTheContainer",
     "<hourTypes><id>1</id><color>0</color><hour><id>2</id></hour></hourTypes>",
     "<hourTypes><id>1</id><color>0</color><hour/></hourTypes>"},
    {"ErasesTheFirstOfEqualFields",
     "<hourTypes><hour><id>1</id><id>2</id><color>0</color><color>9</color></hour></hourTypes>",
     "<hourTypes><hour><id>2</id><color>9</color></hour></hourTypes>"},
    {"MindsTheCaseOfTags", "<hourTypes><hour><Id>1</Id><colour>0</colour></hour></hourTypes>",
     "<hourTypes><hour><Id>1</Id><colour>0</colour></hour></hourTypes>"},
    {"MayBeEmpty", "<hourTypes/>", "<hourTypes/>"},
};

INSTANTIATE_TEST_SUITE_P(Table, IndexDocumentOf, testing::ValuesIn(cases),
                         [](const auto& test) { return test.param.name; });

TEST(IndexDocument, LeavesItsSourceAlone) {
  XmlDocument source;
  ASSERT_TRUE(source.Parse("<hourTypes><hour><id>1</id><color>0</color></hour></hourTypes>"));
  const XmlNode before(*source.Root());
  const auto index = MakeIndexDocument(*source.Root());
  EXPECT_TRUE(*source.Root() == before);
  EXPECT_FALSE(*index->Root() == before);
}

TEST(IndexDocument, LivesOnWithoutItsSource) {
  auto source = std::make_unique<XmlDocument>();
  ASSERT_TRUE(source->Parse("<hourTypes><hour><id>1</id><name>A</name></hour></hourTypes>"));
  const auto index = MakeIndexDocument(*source->Root());
  source.reset();
  EXPECT_EQ(index->Root()->Tag(), L"hourTypes");
  EXPECT_EQ(index->Root()->Node(L"hour")->Value(L"name"), L"A");
}

}  // namespace
}  // namespace qv
