#pragma once

#include <QWidget>

#include "toolkit/Controls.h"
#include "toolkit/LayoutSize.h"

namespace qv {

/// A window whose controls are known by number, to be laid out in tests.
class LayoutWindow : public QWidget {
 public:
  template <class Control = QWidget>
  Control* Add(int id) {
    auto* control = new Control(this);
    control->setProperty(controlIdProperty, id);
    return control;
  }

  /// Where a control stands now.
  QRect At(int id) const { return FindControl(this, id)->geometry(); }

  LayoutMetrics Metrics() const { return MetricsOf(this); }
};

}  // namespace qv
