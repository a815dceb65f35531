#pragma once

#include <QPoint>

namespace qv {

class YearView;

/// Shows the menu of a year at a place of the screen: undo and redo, copies of the week and month
/// of the cursor, and of the year. It has the verbs for which the host's language has texts.
void ShowYearMenu(YearView& view, const QPoint& globalPlace);

}  // namespace qv
