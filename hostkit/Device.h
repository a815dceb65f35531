#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "hostkit/DailyCurve.h"
#include "hostkit/VariableClasses.h"

namespace qv {

/// A value that can be had of a device.
struct Variable {
  std::wstring name{};
  std::wstring description{};  ///< in the words of who set up the device; may be empty
  std::wstring unit{};         ///< may be empty
  VariableClasses classes{};
  bool isOfModule = false;  ///< of a module behind the device, whose values can't be had here
  DailyCurve values{};      ///< the simulated values

  friend bool operator==(const Variable&, const Variable&) = default;
};

enum class DeviceKind { Meter, Discriminator };

/// Something that the installation talks to, or a discriminator, with its variables.
class Device {
 public:
  /// A device without variables. A name that begins with "R$DISC_" is that of a discriminator.
  Device(std::wstring name, std::wstring driver);

  const std::wstring& Name() const { return m_name; }
  /// How it is talked to; may be empty.
  const std::wstring& Driver() const { return m_driver; }
  DeviceKind Kind() const;
  /// In the order in which they were added.
  const std::vector<Variable>& Variables() const { return m_variables; }

  /// Adds a variable; false, and nothing is added, if it has no name or one that is there already.
  bool Add(Variable variable);

  /// The variable of exactly this name, or null. It stays where it is until one is added.
  const Variable* Find(std::wstring_view name) const;

 private:
  std::wstring m_name;
  std::wstring m_driver;
  std::vector<Variable> m_variables;
  std::map<std::wstring, std::size_t, std::less<>> m_places;
};

/// Whether a device of this name is a discriminator.
bool IsDiscriminatorName(std::wstring_view deviceName);

}  // namespace qv
