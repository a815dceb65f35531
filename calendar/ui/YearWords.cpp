#include "calendar/ui/YearWords.h"

#include "calendar/ui/CalendarNames.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

template <class Names, std::size_t count>
void Fill(Names& names, const std::array<Text, count>& texts, const QVLoadString& loadString) {
  for (std::size_t i = 0; i < count; ++i) {
    names[i] = HostText(loadString, texts[i]).toStdWString();
  }
}

}  // namespace

QString YearWord(Text text) {
  const QVLoadString* loadString = QVLoadString::Get();
  return loadString ? OwnText(*loadString, text) : QString();
}

QString HostWord(Text text) {
  const QVLoadString* loadString = QVLoadString::Get();
  return loadString ? HostText(*loadString, text) : QString();
}

QString YearCaption(Text text) {
  const QVLoadString* loadString = QVLoadString::Get();
  return loadString && !loadString->IsMute(text) ? HostCaption(*loadString, text) : QString();
}

DateForms HostDateForms() {
  DateForms forms;
  if (const QVLoadString* loadString = QVLoadString::Get()) {
    Fill(forms.months, monthTexts, *loadString);
    Fill(forms.weekdays, weekdayTexts, *loadString);
  }
  forms.date = YearWord(Text::YearDate).toStdWString();
  forms.typed = YearWord(Text::YearDateTyped).toStdWString();
  forms.untyped = YearWord(Text::YearDateUntyped).toStdWString();
  return forms;
}

}  // namespace qv
