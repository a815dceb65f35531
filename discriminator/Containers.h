#pragma once

#include "discriminator/Fields.h"
#include "tools/XmlNode.h"

namespace qv {

/// One of the containers of a discriminator, or a copy of it. Each has a type of its own, so that
/// none can be given in the place of another. The node outlives it.
template <const wchar_t* containerTag>
class Container {
 public:
  explicit Container(XmlNode& node) : m_node(&node) {}

  XmlNode& Node() const { return *m_node; }

 private:
  XmlNode* m_node;
};

using HourTypes = Container<tag::HourTypes>;
using DayTypes = Container<tag::DayTypes>;
using Calendar = Container<tag::Calendar>;
using OrderedConditions = Container<tag::Conditions>;

}  // namespace qv
