#pragma once

#include "host/HostService.h"
#include "tools/QVBasicString.h"

class QVVornelSetup;
extern template class QVHOST_EXPORT HostService<QVVornelSetup>;

/// Where the host keeps its configuration and its images.
class QVHOST_EXPORT QVVornelSetup : public HostService<QVVornelSetup> {
 public:
  virtual ~QVVornelSetup() = default;

  /// The configuration directory with a trailing path separator: file names are appended as they
  /// are.
  virtual const QVWideString& CfgPath() const = 0;

  /// The image directory, likewise with a trailing separator.
  virtual QVWideString getImageFilePath() const = 0;

  /// The resource number of the host program's icon, of which the low 16 bits count. The icon is
  /// the picture "PROGRAM-<number>.png" of the image directory, or else the application's window
  /// icon.
  virtual unsigned ProgramIDResource() const = 0;
};
