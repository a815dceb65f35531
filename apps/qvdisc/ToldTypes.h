#pragma once

#include <list>
#include <memory>

#include "apps/qvdisc/TypeCall.h"
#include "tools/XmlDocument.h"

namespace qvdisc {

/// What became of the types that a call tells.
enum class TypeFate { Listed, Made, Changed, Unchanged, Removed };

/// The types that a call listed, made, changed or removed.
struct ToldTypes {
  TypeKind kind = TypeKind::Hour;
  TypeFate fate = TypeFate::Listed;
  std::list<XmlDocument> types;            ///< a copy of each
  std::unique_ptr<XmlDocument> hourTypes;  ///< those of the slots, if there are types
};

}  // namespace qvdisc
