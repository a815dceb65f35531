#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tools/XmlDocument.h"

namespace qv {

/// The tree that `xml` writes.
inline XmlNode Tree(const std::string& xml) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(xml.c_str())) << xml;
  return XmlNode(*document.Root());
}

}  // namespace qv
