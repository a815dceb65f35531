#pragma once

#include <optional>

#include "apps/configurator/Arguments.h"
#include "apps/configurator/OwnTexts.h"

class QWidget;

namespace configurator {

/// Does with the window that is shown what the command line asks for: gives it a size, prints its
/// rows, saves its picture, and then closes it if nobody need be there.
class Presenter {
 public:
  /// `arguments` outlives the presenter.
  explicit Presenter(const Arguments& arguments);

  /// Does it as soon as `window` is up. Only one window is presented.
  void Present(QWidget& window);

  /// What could not be done, once the window is closed; nothing if all was.
  std::optional<OwnText> Problem() const;

 private:
  void SetSize(QWidget& window) const;
  void Perform(QWidget& window);
  void PrintRows(const QWidget& window) const;

  const Arguments& m_arguments;
  bool m_performed = false;
  bool m_pictureSaved = false;
};

}  // namespace configurator
