#pragma once

#include "host/HostService.h"
#include "tools/QVBasicString.h"

class CreateDiscriminatorIndex;
extern template class QVHOST_EXPORT HostService<CreateDiscriminatorIndex>;

/// Makes the index file of a saved discriminator; called like a function.
class QVHOST_EXPORT CreateDiscriminatorIndex : public HostService<CreateDiscriminatorIndex> {
 public:
  virtual ~CreateDiscriminatorIndex() = default;

  /// `directory` is the configuration directory with its trailing separator, `fileName` the name of
  /// the discriminator and ".xdct", without the id. Afterwards the index file stands beside the
  /// discriminator's, or the directory is unharmed. The callers ignore the result.
  virtual bool operator()(const QVWideString& directory, const QVWideString& fileName) = 0;
};
