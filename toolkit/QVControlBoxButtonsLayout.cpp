#include "toolkit/QVControlBoxButtonsLayout.h"

QVControlBoxButtonsLayout::QVControlBoxButtonsLayout(QWidget* window, qv::LayoutControl list,
                                                     qv::LayoutControl box)
    : QVVerticalLayout(window) {
  SetBoxControl(box, LayoutSizeStandard, true);
  AddControl(list, 100);
}

void QVControlBoxButtonsLayout::AddButtons(qv::LayoutControl first, qv::LayoutControl second,
                                           qv::LayoutControl third) {
  AddRows(first, second, third);
}

void QVControlBoxButtonsLayout::AddButtons21(qv::LayoutControl first, qv::LayoutControl second,
                                             qv::LayoutControl third) {
  AddRows(first, third, second);
}

void QVControlBoxButtonsLayout::AddRows(qv::LayoutControl left, qv::LayoutControl right,
                                        qv::LayoutControl below) {
  auto row = std::make_unique<QVHoritzontalLayout>(nullptr);
  row->AddControl(left, 50);
  row->AddGap(LayoutSizeStandard);
  row->AddControl(right, 50);
  AddGap(LayoutSizeStandard);
  AddOwned(std::move(row), LayoutSizeStandard);
  AddGap(LayoutSizeStandard);
  AddControl(below, LayoutSizeStandard);
}
