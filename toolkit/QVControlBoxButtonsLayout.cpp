#include "toolkit/QVControlBoxButtonsLayout.h"

QVControlBoxButtonsLayout::QVControlBoxButtonsLayout(QWidget* window, int listId, int boxId)
    : QVVerticalLayout(window) {
  SetBoxControl(boxId, LayoutSizeStandard, true);
  AddControl(listId, 100);
}

void QVControlBoxButtonsLayout::AddButtons(int first, int second, int third) {
  AddRows(first, second, third);
}

void QVControlBoxButtonsLayout::AddButtons21(int first, int second, int third) {
  AddRows(first, third, second);
}

void QVControlBoxButtonsLayout::AddRows(int left, int right, int below) {
  auto row = std::make_unique<QVHoritzontalLayout>(nullptr);
  row->AddControl(left, 50);
  row->AddGap(LayoutSizeStandard);
  row->AddControl(right, 50);
  AddGap(LayoutSizeStandard);
  AddOwned(std::move(row), LayoutSizeStandard);
  AddGap(LayoutSizeStandard);
  AddControl(below, LayoutSizeStandard);
}
