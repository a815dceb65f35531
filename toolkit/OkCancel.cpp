#include "toolkit/OkCancel.h"

#include "toolkit/Types.h"

namespace qv {
namespace {

void AddButtons(QVLayout& row, LayoutSize share) {
  row.AddControl(IDOK, share);
  row.AddGap(LayoutSizeStandard);
  row.AddControl(IDCANCEL, share);
}

}  // namespace

void AddOkCancel(QVLayout& row) { AddButtons(row, 50); }

void AddNarrowOkCancel(QVLayout& row) {
  row.AddGap(10);
  AddButtons(row, 40);
  row.AddGap(10);
}

}  // namespace qv
