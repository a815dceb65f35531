#pragma once

#include <QWidget>

namespace qv {

/// The dynamic property that holds a control's number in a template.
inline constexpr char controlIdProperty[] = "controlId";

/// The control of `window` with this number, or null. Controls may lie at any depth.
QWidget* FindControl(const QWidget* window, int id);

}  // namespace qv
