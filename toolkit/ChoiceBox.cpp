#include "toolkit/ChoiceBox.h"

#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QWheelEvent>

#include "toolkit/Caption.h"
#include "toolkit/RowDelegate.h"

namespace qv {
namespace {

constexpr int mostRows = 15;
/// What styles leave free around the text and between it and the icon.
constexpr int roomAroundText = 2;
constexpr int roomBehindIcon = 4;

/// The rows of the open list, which takes their width from the box.
class ChoiceRows : public RowDelegate {
 public:
  using RowDelegate::RowDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, RowDelegate::sizeHint(option, index).height()};
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (RowDelegate::sizeHint(option, index).width() <= option.rect.width()) {
      return RowDelegate::helpEvent(event, view, option, index);
    }
    QToolTip::showText(event->globalPos(), PlainToolTip(index.data().toString()), view);
    return true;
  }
};

}  // namespace

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMaxVisibleItems(mostRows);
  // Else some styles open a list that takes the whole screen. A style sheet, since a style of its
  // own would not follow that of the application.
  setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
  setItemDelegate(new ChoiceRows(view()));
  view()->setTextElideMode(Qt::ElideRight);
}

void ChoiceBox::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  option->currentText = ElidedCaption(option->currentText, fontMetrics(), RoomForText(*option));
}

int ChoiceBox::RoomForText(const QStyleOptionComboBox& option) const {
  const QRect field =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  const int icon = option.currentIcon.isNull() ? 0 : option.iconSize.width() + roomBehindIcon;
  return field.width() - icon - roomAroundText;
}

bool ChoiceBox::IsTextCut() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return option.currentText != currentText();
}

bool ChoiceBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !IsTextCut()) {
    return QComboBox::event(event);
  }
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainToolTip(currentText()),
                     this);
  return true;
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace qv
