#include "toolkit/WidePlaces.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

const QString clefBetweenLetters = QString::fromUtf8(
    "a\xF0\x9D\x84\x9E"
    "b");

TEST(WidePlaces, AreThoseOfQtInATextOfPlainCharacters) {
  const QString text = QString::fromUtf8("a\xC3\xB1o");
  for (int place = 0; place <= 3; ++place) {
    EXPECT_EQ(ToWidePlace(text, place), place);
    EXPECT_EQ(ToQtPlace(text, place), place);
  }
}

TEST(WidePlaces, AgreeWithTheWideText) {
  for (const QString& text : {QString(), clefBetweenLetters, QStringLiteral("x"),
                              QString(3, QChar(0xD834)), QString(QChar(0xDD1E))}) {
    EXPECT_EQ(WideLength(text), static_cast<int>(text.toStdWString().size()));
  }
}

TEST(WidePlaces, ReturnFromATextOfQt) {
  const int length = WideLength(clefBetweenLetters);
  for (int place = 0; place <= length; ++place) {
    const int qtPlace = ToQtPlace(clefBetweenLetters, place);
    EXPECT_EQ(ToWidePlace(clefBetweenLetters, qtPlace), place);
    EXPECT_EQ(clefBetweenLetters.left(qtPlace).toStdWString(),
              clefBetweenLetters.toStdWString().substr(0, static_cast<std::size_t>(place)));
  }
}

TEST(WidePlaces, AreCutAtBothEnds) {
  EXPECT_EQ(ToQtPlace(clefBetweenLetters, -1), 0);
  EXPECT_EQ(ToQtPlace(clefBetweenLetters, 100), 4);
  EXPECT_EQ(ToWidePlace(clefBetweenLetters, -1), 0);
  EXPECT_EQ(ToWidePlace(clefBetweenLetters, 100), WideLength(clefBetweenLetters));
}

}  // namespace
}  // namespace qv
