#pragma once

#include <array>
#include <bitset>
#include <cstddef>

namespace qv {

/// What a variable is, and what may be done with it: the number of each class's bit. Numbers in
/// files and masks are these, so a new class takes the place of a spare one.
enum class VariableClass {
  Present,     ///< a value of the moment
  Counter,     ///< a value that only grows
  State,       ///< one of a few states
  Writable,    ///< may be set
  Expression,  ///< may be read in expressions
  Logged,      ///< is kept in the history
  Report,      ///< may stand in reports
  Alarm,       ///< tells that something is wrong
  Voltage,
  Current,
  ActivePower,
  ReactivePower,
  ApparentPower,
  PowerFactor,
  Frequency,
  ActiveEnergy,
  ReactiveEnergy,
  ApparentEnergy,
  Demand,      ///< a mean power over a period
  Distortion,  ///< harmonics
  Unbalance,   ///< of the phases
  Temperature,
  Humidity,
  Pressure,
  Flow,
  Volume,
  Level,
  Light,
  Time,
  Cost,
  Emission,
  Configuration,  ///< how the device is set up
  Diagnosis,      ///< of the device and its communication
  Spare,          ///< not given away yet
  Count
};

/// A set of classes, by the number of their bit.
using VariableClasses = std::bitset<static_cast<std::size_t>(VariableClass::Count)>;
static_assert(VariableClasses().size() == 34, "masks of hosts and files have 34 bits");

/// The set of this class alone.
constexpr VariableClasses ClassAlone(VariableClass variableClass) {
  return VariableClasses(1ULL << static_cast<unsigned>(variableClass));
}

}  // namespace qv
