// The road from the editor of a discriminator to its conditions, and back.
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/editor/FormFixture.h"
#include "tests/support/Parsed.h"

namespace qv {
namespace {

constexpr char alarm[] =
    "<main><id>1</id><name>old</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
    "<type>CONDITIONS</type><conditions><condition><id>c</id><name>A</name><exp>a</exp>"
    "</condition></conditions><revision>r</revision></main>";

class ConditionsOfForm : public FormTest {
 protected:
  /// A dialog that gives the first condition the name "N".
  static std::function<EditorEnd(OrderedConditions)> Naming(EditorEnd end) {
    return [=](OrderedConditions conditions) {
      conditions.Node().Node(L"condition")->SetValue(L"name", L"N");
      return end;
    };
  }

  static std::wstring NameIn(const DiscriminatorForm& form) {
    return std::wstring(
        form.Root().Node(L"conditions")->Node(L"condition")->Value(L"name").ToView());
  }

  /// A form of an unknown type whose save the disk has refused, which dropped its conditions.
  std::unique_ptr<DiscriminatorForm> OfUnknownTypeNotSaved() {
    std::string content = alarm;
    content.replace(content.find("CONDITIONS"), 10, "OTHER");
    auto form = OpenContent(content);
    EXPECT_EQ(form->Type(), DiscriminatorType::Conditions);
    files.unwritable = {L"/cfg/1.old.xdct"};
    EXPECT_EQ(form->Save(Named(L"old")).outcome, SaveOutcome::NotWritten);
    EXPECT_FALSE(form->Root().Node(L"conditions"));
    return form;
  }
};

TEST_F(ConditionsOfForm, TheirDialogWorksOnACopyThatIsTakenBack) {
  auto form = OpenContent(alarm);
  const XmlNode* conditions = form->Root().Node(L"conditions");
  form->OnConditions([&](OrderedConditions copy) {
    EXPECT_EQ(copy.Node(), *conditions);
    EXPECT_NE(&copy.Node(), conditions);
    return Naming({true, true})(copy);
  });
  EXPECT_EQ(NameIn(*form), L"N");
  EXPECT_EQ(form->Root().Node(L"conditions"), conditions) << "the node stays";
  EXPECT_TRUE(form->IsModified());
}

TEST_F(ConditionsOfForm, AMoveComesBackButIsNoModification) {
  auto form = OpenContent(alarm);
  form->OnConditions(Naming({true, false}));
  EXPECT_EQ(NameIn(*form), L"N");
  EXPECT_FALSE(form->IsModified());
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"old"))));
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"revision"), L"r");
}

TEST_F(ConditionsOfForm, ACancelOrAnErrorLeavesTheDocumentAsItWas) {
  auto form = OpenContent(alarm);
  const XmlNode before(form->Root());
  form->OnConditions(Naming({false, true}));
  EXPECT_THROW(form->OnConditions([](OrderedConditions conditions) -> EditorEnd {
    conditions.Node().Reset();
    throw std::runtime_error("dialog");
  }),
               std::runtime_error);
  EXPECT_EQ(form->Root(), before);
  EXPECT_FALSE(form->IsModified());
}

TEST_F(ConditionsOfForm, WhereASaveHasDroppedThemTheDialogBeginsWithNone) {
  auto form = OfUnknownTypeNotSaved();
  form->OnConditions([](OrderedConditions conditions) {
    EXPECT_EQ(conditions.Node(), *Parsed("<conditions/>"));
    conditions.Node().NewChild(L"condition", nullptr)->SetValue(L"name", L"N");
    return EditorEnd{true, true};
  });
  EXPECT_EQ(NameIn(*form), L"N");
}

TEST_F(ConditionsOfForm, WhereASaveHasDroppedThemACancelMakesNone) {
  auto form = OfUnknownTypeNotSaved();
  const XmlNode before(form->Root());
  form->OnConditions([](OrderedConditions) { return EditorEnd{}; });
  EXPECT_EQ(form->Root(), before);
}

}  // namespace
}  // namespace qv
