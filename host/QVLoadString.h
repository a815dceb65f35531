#pragma once

#include "host/HostService.h"
#include "host/Text.h"
#include "tools/QVBasicString.h"

class QVLoadString;
extern template class QVHOST_EXPORT HostService<QVLoadString>;

/// The host's texts by number; called like a function.
class QVHOST_EXPORT QVLoadString : public HostService<QVLoadString> {
 public:
  virtual ~QVLoadString() = default;

  /// Replaces the content of `text` by the text of the number `id` and returns `text`. For a number
  /// that the language lacks the text should show the number.
  virtual QVWideString& operator()(unsigned id, QVWideString& text) const = 0;

  /// Whether the language has the number. The library asks for its own additions (60000 and up)
  /// only: a host that doesn't answer has none of them, and they stay mute.
  virtual bool Has(unsigned id) const;

  /// Whether `id` is one of the library's own additions and the language lacks it, so that nothing
  /// is to be said.
  bool IsMute(Text id) const;

  /// The text by value.
  QVWideString Load(Text id) const;
};
