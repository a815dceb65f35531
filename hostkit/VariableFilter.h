#pragma once

#include "hostkit/Device.h"

namespace qv {

/// Which variables an expression may have.
struct VariableFilter {
  VariableClasses classes{};  ///< of which a variable needs one; none for any variable
  bool withDiscriminators = true;

  bool Allows(const Device& device) const {
    return withDiscriminators || device.Kind() != DeviceKind::Discriminator;
  }
  bool Allows(const Variable& variable) const {
    return classes.none() || (classes & variable.classes).any();
  }
};

}  // namespace qv
