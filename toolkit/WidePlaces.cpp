#include "toolkit/WidePlaces.h"

namespace qv {
namespace {

/// The length of the character at `place` in units of Qt.
int UnitsAt(const QString& text, qsizetype place) {
  const bool isPair = sizeof(wchar_t) > sizeof(QChar) && text.at(place).isHighSurrogate() &&
                      place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
  return isPair ? 2 : 1;
}

}  // namespace

int ToWidePlace(const QString& text, int qtPlace) {
  int wide = 0;
  for (int place = 0; place < qtPlace && place < text.size(); place += UnitsAt(text, place)) {
    ++wide;
  }
  return wide;
}

int ToQtPlace(const QString& text, int widePlace) {
  int place = 0;
  for (int wide = 0; wide < widePlace && place < text.size(); ++wide) {
    place += UnitsAt(text, place);
  }
  return place;
}

int WideLength(const QString& text) { return ToWidePlace(text, static_cast<int>(text.size())); }

}  // namespace qv
