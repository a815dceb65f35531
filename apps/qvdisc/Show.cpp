#include <memory>
#include <utility>

#include "apps/qvdisc/Verbs.h"
#include "discriminator/FileNames.h"

namespace qvdisc {

void Show(const qv::DiscriminatorDirectory& directory, const QVWideString& stem, Outcome& outcome) {
  auto document = std::make_unique<XmlDocument>();
  if (directory.Load(*document, (stem + qv::discriminatorExtension).ToView())) {
    outcome.document = std::move(document);
  } else {
    outcome.Fail(Word::DiscriminatorUnreadable, {stem});
  }
}

}  // namespace qvdisc
