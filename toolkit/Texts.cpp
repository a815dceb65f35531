#include "toolkit/Texts.h"

#include "host/Mnemonic.h"
#include "toolkit/Strings.h"

namespace qv {

QString HostText(const QVLoadString& loadString, Text text) {
  return WithoutMnemonic(HostCaption(loadString, text));
}

QString OwnText(const QVLoadString& loadString, Text text) {
  return loadString.Has(Number(text)) ? HostText(loadString, text) : QString();
}

QString HostCaption(const QVLoadString& loadString, Text text) {
  return ToQString(loadString.Load(text));
}

QString WithoutMnemonic(const QString& caption) {
  return ToQString(WithoutMnemonic(ToWide(caption).ToView()));
}

}  // namespace qv
