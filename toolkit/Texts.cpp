#include "toolkit/Texts.h"

#include "toolkit/Strings.h"

namespace qv {

QString HostText(const QVLoadString& loadString, Text text) {
  return ToQString(loadString.Load(text));
}

QString OwnText(const QVLoadString& loadString, Text text) {
  return loadString.Has(Number(text)) ? HostText(loadString, text) : QString();
}

}  // namespace qv
