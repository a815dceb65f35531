#include "discriminator/EditedCopies.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

class EditedCopiesTest : public testing::Test {
 protected:
  EditedCopiesTest() { EXPECT_TRUE(document.Parse("<r><a><x>1</x></a><b><x>2</x></b></r>")); }

  XmlNode& A() { return *document.Root()->Node(L"a"); }
  XmlNode& B() { return *document.Root()->Node(L"b"); }

  XmlDocument document;
  bool modified = false;
};

TEST_F(EditedCopiesTest, EachOriginalHasACopyOfItsOwn) {
  EditedCopies copies({&A(), &B()});
  EXPECT_NE(&copies.Of(A()), &A());
  EXPECT_EQ(copies.Of(A()), A());
  EXPECT_EQ(copies.Of(B()), B());
}

TEST_F(EditedCopiesTest, AConfirmedEditorsCopiesTakeThePlacesOfTheOriginals) {
  EditedCopies copies({&A(), &B()});
  copies.Of(A()).SetValue(L"x", L"3");
  copies.Of(B()).SetValue(L"x", L"4");
  EXPECT_EQ(A().Value(L"x"), L"1");
  XmlNode* const place = &A();
  EXPECT_TRUE(copies.TakeBack({true, true}, modified));
  EXPECT_EQ(&A(), place);
  EXPECT_EQ(A().Value(L"x"), L"3");
  EXPECT_EQ(B().Value(L"x"), L"4");
  EXPECT_TRUE(modified);
}

TEST_F(EditedCopiesTest, AnyOtherEndDropsThem) {
  const XmlNode before(*document.Root());
  EditedCopies copies({&A()});
  copies.Of(A()).SetValue(L"x", L"3");
  EXPECT_FALSE(copies.TakeBack({false, true}, modified));
  EXPECT_EQ(*document.Root(), before);
  EXPECT_FALSE(modified);
}

TEST_F(EditedCopiesTest, AConfirmationWithoutAChangeIsTakenOverAndIsNone) {
  EditedCopies copies({&A()});
  copies.Of(A()).SetValue(L"x", L"3");
  EXPECT_TRUE(copies.TakeBack({true, false}, modified));
  EXPECT_EQ(A().Value(L"x"), L"3");
  EXPECT_FALSE(modified);
}

TEST_F(EditedCopiesTest, AChangeThatWasNotedStaysNoted) {
  modified = true;
  EditedCopies copies({&A()});
  EXPECT_TRUE(copies.TakeBack({true, false}, modified));
  EXPECT_TRUE(modified);
}

}  // namespace
}  // namespace qv
