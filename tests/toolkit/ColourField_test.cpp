#include "toolkit/ColourField.h"

#include <gtest/gtest.h>

#include "tests/toolkit/PictureFiles.h"

namespace qv {
namespace {

TEST(ColourField, ShowsItsColourInAThinFrameAndTellsIt) {
  ColourField field;
  field.resize(30, 20);
  EXPECT_EQ(field.ShownColour(), 0xFFFFFFU);
  EXPECT_EQ(field.accessibleDescription(), "#FFFFFF");
  EXPECT_TRUE(ChangesLook(field, [&] { field.SetColour(0x0080FF); }));
  EXPECT_EQ(field.ShownColour(), 0x0080FFU);
  EXPECT_EQ(field.accessibleDescription(), "#FF8000");
  EXPECT_EQ(CountPixels(field.grab().toImage(), QColor(255, 128, 0)), 28 * 18);
}

TEST(ColourField, CannotTakeTheFocus) {
  const ColourField field;
  EXPECT_EQ(field.focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace qv
