#include "toolkit/DialogColumn.h"

#include "toolkit/Types.h"

namespace qv {
namespace {

/// The free share of the width on each side of the buttons, and that of a button.
struct OkCancelShares {
  LayoutSize margin;
  LayoutSize button;
};

OkCancelShares SharesOf(OkCancelWidth width) {
  switch (width) {
    case OkCancelWidth::Narrow:
      return {10, 40};
    case OkCancelWidth::WideMargins:
      return {LayoutSizeWide, 50};
    case OkCancelWidth::Whole:
      break;
  }
  return {0, 50};
}

}  // namespace

OkCancelRow::OkCancelRow(QWidget* window, OkCancelWidth width) : QVHoritzontalLayout(window) {
  const OkCancelShares shares = SharesOf(width);
  AddGap(shares.margin);
  AddControl(IDOK, shares.button);
  AddGap(LayoutSizeStandard);
  AddControl(IDCANCEL, shares.button);
  AddGap(shares.margin);
}

DialogColumn::DialogColumn(QWidget* window) : QVVerticalLayout(window) {
  SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  AddGap(LayoutSizeStandard);
}

void DialogColumn::Add(LayoutControl control, LayoutSize size) {
  AddControl(control, size);
  AddGap(LayoutSizeStandard);
}

void DialogColumn::Add(QVLayout* layout, LayoutSize size) {
  AddLayout(layout, size);
  AddGap(LayoutSizeStandard);
}

void DialogColumn::AddLabelled(LayoutControl control, LayoutControl label) {
  qv::AddLabelled(*this, control, label);
  AddGap(LayoutSizeStandard);
}

void AddLabelled(QVLayout& layout, LayoutControl control, LayoutControl label, LayoutSize size) {
  layout.AddControlAndLabel(control, label, size, labelDistance, LayoutSizeLabel);
}

}  // namespace qv
