#include "toolkit/GroupBoxMargins.h"

#include <QGroupBox>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace qv {

namespace {

QStyleOptionGroupBox OptionOf(const QGroupBox& box, bool titled) {
  constexpr int ample = 1000;  // far more than the frame: the present size may still be empty
  QStyleOptionGroupBox option;
  option.initFrom(&box);
  option.rect = QRect(0, 0, ample, ample);
  option.lineWidth = 1;
  option.textAlignment = box.alignment();
  option.subControls = QStyle::SC_GroupBoxFrame;
  if (titled) {
    option.text = QStringLiteral("X");  // any title: the height is what counts
    option.subControls |= QStyle::SC_GroupBoxLabel;
  }
  return option;
}

}  // namespace

QMargins GroupBoxMargins(const QWidget* box, int margin, bool titled) {
  const QMargins plain(margin, margin, margin, margin);
  const auto* group = qobject_cast<const QGroupBox*>(box);
  if (!group) {
    return plain + QMargins(0, titled && box ? box->fontMetrics().height() : 0, 0, 0);
  }
  const QStyleOptionGroupBox option = OptionOf(*group, titled);
  const QRect content = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                       QStyle::SC_GroupBoxContents, group);
  // Some styles count the title into the frame's rectangle. What the content has to give up at the
  // top more than at the left is what lies above the frame, or the title in it.
  return plain + QMargins(0, content.top() - content.left(), 0, 0);
}

}  // namespace qv
