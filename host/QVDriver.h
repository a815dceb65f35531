#pragma once

#include <bitset>
#include <map>
#include <string>

#include "host/Export.h"
#include "tools/QVBasicString.h"

/// What a device says of one of its variables. The texts are the driver's and stay valid after
/// `QVDriver::CloseVariable`.
struct VariableInfo {
  const wchar_t* name = L"";     ///< in full, as in "DAY.Weekend.ENERGY"
  const char* description = "";  ///< in words, as XML text: UTF-8 with entities
  std::bitset<34> classes{};     ///< of variables, by the number of their bit
};

/// A device of the host as its variables are chosen.
class QVHOST_EXPORT QVDriver {
 public:
  /// The device's variables by key; what stands behind a key is the driver's own.
  using Variables = std::map<std::wstring, const void*>;
  using iterator = Variables::const_iterator;

  QVDriver() = default;
  QVDriver(const QVDriver&) = delete;
  QVDriver& operator=(const QVDriver&) = delete;
  virtual ~QVDriver() = default;

  /// The device's name.
  virtual const wchar_t* Name() = 0;
  /// The classes that its variables have, all together.
  virtual const std::bitset<34>& VariableClasses() = 0;
  /// Opens the variable with this key; false, and `handle` as it was, if there is none.
  virtual bool OpenVariable(const wchar_t* key, void** handle) = 0;
  /// Gives up what `OpenVariable` gave.
  virtual void CloseVariable(void** handle) = 0;
  /// Fills `info` with what is to be said of an opened variable; false if that isn't possible. The
  /// library gives 0 for the last argument.
  virtual bool GetVariableInfo(void* handle, VariableInfo* info, int detail) = 0;
  /// The variables, in the order of their keys.
  virtual iterator VariablesBegin() = 0;
  virtual iterator VariablesEnd() = 0;
};

/// Parts the name of a variable at its first dot: what stands before it and what behind it. Without
/// a dot `first` is all of it and `second` is empty. The last argument is ignored.
QVHOST_EXPORT void SplitDriverVariable(const QVWideString& variable, QVWideString& first,
                                       QVWideString& second, bool);
