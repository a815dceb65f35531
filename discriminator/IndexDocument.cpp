#include "discriminator/IndexDocument.h"

#include "discriminator/Fields.h"

namespace qv {

std::unique_ptr<XmlDocument> MakeIndexDocument(const XmlNode& hourTypes) {
  auto index = std::make_unique<XmlDocument>(hourTypes);
  XmlNode& root = *index->Root();
  for (auto child = root.ChildsBegin(); child != root.ChildsEnd(); ++child) {
    (*child)->EraseTag(tag::Id);
    (*child)->EraseTag(tag::Color);
  }
  return index;
}

}  // namespace qv
